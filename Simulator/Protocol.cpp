// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Protocol.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <strings.h>

namespace lodestar::simulator
{

std::optional<std::string> SentRequest::header(std::string_view name) const
{
    std::optional<std::string> value;
    for (const std::string& line : headers) {
        if (line.size() > name.size() && line[name.size()] == ':' &&
            strncasecmp(line.data(), name.data(), name.size()) == 0) {
            const std::size_t start = std::min(line.find_first_not_of(" \t", name.size() + 1), line.size());
            value = (value ? *value + ", " : std::string()) + line.substr(start);
        }
    }
    return value;
}

std::string encodeWord(std::string_view bytes)
{
    if (bytes.empty()) {
        return "%";
    }
    static constexpr std::string_view digits = "0123456789ABCDEF";
    std::string word;
    word.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte <= 0x20 || byte >= 0x7F || c == '%') {
            word += {'%', digits[byte >> 4U], digits[byte & 0xFU]};
        } else {
            word += c;
        }
    }
    return word;
}

std::string decodeWord(std::string_view word)
{
    if (word == "%") {
        return {};
    }
    std::string bytes;
    bytes.reserve(word.size());
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%') {
            bytes += word[i];
            continue;
        }
        unsigned byte = 0;
        const char* digits = word.data() + i + 1;
        if (i + 2 >= word.size() || std::from_chars(digits, digits + 2, byte, 16).ptr != digits + 2) {
            throw std::invalid_argument("not percent-encoded: " + std::string(word));
        }
        bytes += static_cast<char>(byte);
        i += 2;
    }
    return bytes;
}

std::vector<std::string> splitWords(std::string_view line)
{
    std::vector<std::string> words;
    std::size_t start = 0;
    while ((start = line.find_first_not_of(' ', start)) != std::string_view::npos) {
        const std::size_t end = std::min(line.find(' ', start), line.size());
        words.emplace_back(line.substr(start, end - start));
        start = end;
    }
    return words;
}

std::string encodeRequest(const RecordedRequest& request)
{
    std::string line = std::to_string(request.console);
    const auto add = [&line](const std::string& word) { line.append(1, ' ').append(word); };
    add(std::to_string(request.connection));
    add(std::to_string(request.milliseconds));
    for (const std::string* text : {&request.method, &request.path, &request.body}) {
        add(encodeWord(*text));
    }
    for (const std::string& header : request.headers) {
        add(encodeWord(header));
    }
    return line;
}

RecordedRequest decodeRequest(const std::vector<std::string>& words)
{
    if (words.size() < 6) {
        throw std::invalid_argument("not a request");
    }
    RecordedRequest request;
    request.console = std::stoi(words[0]);
    request.connection = std::stoull(words[1]);
    request.milliseconds = std::stoll(words[2]);
    request.method = decodeWord(words[3]);
    request.path = decodeWord(words[4]);
    request.body = decodeWord(words[5]);
    for (std::size_t i = 6; i < words.size(); ++i) {
        request.headers.push_back(decodeWord(words[i]));
    }
    return request;
}

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LogText.h"

#include <fmt/core.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace lodestar
{

namespace
{

std::uint32_t byteAt(std::string_view text, std::size_t index)
{
    return static_cast<unsigned char>(text[index]);
}

/// Length and code point of the well-formed character of two or more bytes at the start of the text; the length is 0
/// when there is none.
std::size_t decode(std::string_view text, std::uint32_t& code)
{
    const std::uint32_t lead = byteAt(text, 0);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) {
        return 0;
    }
    code = lead & (0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        if ((byteAt(text, index) & 0xC0U) != 0x80U) {
            return 0;
        }
        code = (code << 6U) | (byteAt(text, index) & 0x3FU);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool outside = (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF;
    return overlong || outside ? 0 : length;
}

/// C1 controls, separators at which some viewers break lines, and marks that reorder what a viewer shows.
bool disguises(std::uint32_t code)
{
    return code < 0xA0 || (code >= 0x2028 && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069) || code == 0x200E ||
           code == 0x200F || code == 0x061C || code == 0xFEFF;
}

void appendBytes(std::string& line, std::string_view bytes)
{
    for (const char byte : bytes) {
        fmt::format_to(std::back_inserter(line), "\\x{:02x}", static_cast<unsigned char>(byte));
    }
}

void appendAscii(std::string& line, char byte)
{
    constexpr std::string_view shortened = "\\\n\r\t";
    if (const std::size_t at = shortened.find(byte); at != std::string_view::npos) {
        line += {'\\', "\\nrt"[at]};
    } else if (byte >= ' ' && byte != '\x7f') {
        line += byte;
    } else {
        appendBytes(line, {&byte, 1});
    }
}

} // namespace

void appendLogText(std::string& line, std::string_view message)
{
    std::string_view rest = message.substr(0, maximumLogMessage);
    while (!rest.empty()) {
        const auto plain = std::find_if(rest.begin(), rest.end(),
                                        [](char byte) { return byte < ' ' || byte == '\x7f' || byte == '\\'; });
        line.append(rest.begin(), plain);
        rest.remove_prefix(static_cast<std::size_t>(plain - rest.begin()));
        if (rest.empty()) {
            break;
        }
        std::uint32_t code = 0;
        std::size_t length = 1;
        if (byteAt(rest, 0) < 0x80) {
            appendAscii(line, rest.front());
        } else {
            const std::size_t decoded = decode(rest, code);
            length = std::max<std::size_t>(decoded, 1);
            if (decoded == 0 || disguises(code)) {
                appendBytes(line, rest.substr(0, length));
            } else {
                line.append(rest.substr(0, length));
            }
        }
        rest.remove_prefix(length);
    }
    if (message.size() > maximumLogMessage) {
        fmt::format_to(std::back_inserter(line), " ({} more bytes)", message.size() - maximumLogMessage);
    }
}

} // namespace lodestar

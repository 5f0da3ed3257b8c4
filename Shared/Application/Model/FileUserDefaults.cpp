// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/FileUserDefaults.h"

#include "Feedback/VireoLogger.h"
#include "Platform/PrivateFile.h"

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <system_error>

namespace lodestar
{

namespace
{

using Value = std::variant<bool, std::string>;
using Values = std::map<std::string, Value>;

// The file's format knows texts only, so booleans and texts stand in two groups.
constexpr std::string_view booleans = "Booleans";
constexpr std::string_view strings = "Strings";

/// Stands for the empty text, which cannot be a key in the format. No text's encoding is a lone percent sign.
constexpr std::string_view emptyText = "%";

bool standsForItself(char letter)
{
    const bool isDigit = letter >= '0' && letter <= '9';
    const bool isLetter = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
    return isDigit || isLetter || letter == '-' || letter == '.' || letter == '_' || letter == '~';
}

/// Percent-encodes the text, so that it comes back as it was: the format gives line ends, blanks, "=", commas and
/// quotes a meaning of their own.
std::string encoded(std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string out(text.empty() ? emptyText : "");
    for (const char letter : text) {
        if (standsForItself(letter)) {
            out += letter;
        } else {
            const auto byte = static_cast<unsigned char>(letter);
            out.append({'%', digits[byte / 16], digits[byte % 16]});
        }
    }
    return out;
}

int digitOf(char letter)
{
    return letter >= '0' && letter <= '9'   ? letter - '0'
           : letter >= 'a' && letter <= 'f' ? letter - 'a' + 10
           : letter >= 'A' && letter <= 'F' ? letter - 'A' + 10
                                            : -1;
}

/// A percent sign that begins no encoded byte stays as it is.
std::string withoutPercents(std::string_view text)
{
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const int high = text[at] == '%' && at + 2 < text.size() ? digitOf(text[at + 1]) : -1;
        const int low = high >= 0 ? digitOf(text[at + 2]) : -1;
        out += low >= 0 ? static_cast<char>(high * 16 + low) : text[at];
        at += low >= 0 ? 2 : 0;
    }
    return out;
}

std::string decoded(std::string_view text)
{
    return text == emptyText ? std::string() : withoutPercents(text);
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Takes what a line says. Skips empty keys: a damaged file may have them, and we write none.
void readLine(std::string_view line, std::string_view group, Values& flags, Values& texts)
{
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || trimmed(line.substr(0, equals)).empty()) {
        return;
    }
    // Keys are encoded twice; see `line`.
    std::string key = decoded(withoutPercents(trimmed(line.substr(0, equals))));
    const std::string_view value = trimmed(line.substr(equals + 1));
    if (group == strings) {
        texts.insert_or_assign(std::move(key), decoded(value));
    } else if (group == booleans) {
        flags.insert_or_assign(std::move(key), !value.empty() && value != "false" && value != "0");
    }
}

std::string contentsOf(const std::string& path)
{
    std::error_code none;
    if (!std::filesystem::is_regular_file(path, none)) {
        return {}; // opening a pipe would wait
    }
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Values read(const std::string& path)
{
    const std::string contents = contentsOf(path);
    Values flags;
    Values texts;
    std::string_view group;
    for (std::string_view rest = contents; !rest.empty();) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = trimmed(rest.substr(0, end));
        if (line.starts_with('[')) {
            group = line.substr(1, line.find(']') - 1);
        } else {
            readLine(line, group, flags, texts);
        }
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    flags.merge(texts); // of a key in both groups the boolean counts
    return flags;
}

/// One line of the file. Readers of the format decode percent signs of a key by themselves, so a key's are encoded
/// again.
std::string line(const std::string& key, const Value& value)
{
    const bool* const flag = std::get_if<bool>(&value);
    const std::string text = flag != nullptr ? (*flag ? "true" : "false") : encoded(std::get<std::string>(value));
    std::string name;
    for (const char letter : encoded(key)) {
        name += letter == '%' ? "%25" : std::string(1, letter);
    }
    return name + "=" + text + "\n";
}

/// The text of a file that `read` understands.
std::string fileText(const Values& values)
{
    std::string flags;
    std::string texts;
    for (const auto& [key, value] : values) {
        (std::holds_alternative<bool>(value) ? flags : texts) += line(key, value);
    }
    const auto group = [](std::string_view name, const std::string& lines) {
        return lines.empty() ? std::string() : "[" + std::string(name) + "]\n" + lines;
    };
    return group(booleans, flags) + group(strings, texts);
}

/// Replaces the file as a whole: it holds session keys, so the new file is private from its first byte. The folder
/// belongs to this process, so no lock is needed.
bool write(const std::string& path, const Values& values)
{
    const std::string folder = std::filesystem::absolute(path).parent_path().string();
    const std::string fresh = path + ".new";
    std::remove(fresh.c_str()); // left by a process that was killed
    if (!makePrivateFolder(folder) || !writePrivateFile(fresh, fileText(values))) {
        return false;
    }
    if (std::rename(fresh.c_str(), path.c_str()) != 0) {
        std::remove(fresh.c_str());
        return false;
    }
    syncFolder(folder);
    return true;
}

} // namespace

FileUserDefaults::FileUserDefaults(const std::string& path) : UserDefaults(read(path)), m_path(path) {}

FileUserDefaults::~FileUserDefaults()
{
    m_queue.sync([this] { synchronize(); }); // after the last write that is queued
}

void FileUserDefaults::didChange()
{
    ++m_generation;
    if (!m_writeQueued.exchange(true)) {
        m_queue.async([this] { synchronize(); });
    }
}

bool FileUserDefaults::synchronize()
{
    const std::lock_guard writing(m_writeMutex);
    m_writeQueued = false;
    const std::uint64_t copied = m_generation;
    if (copied == m_writtenGeneration) {
        return true;
    }
    bool written = false;
    try {
        written = write(m_path, values());
    } catch (const std::bad_alloc&) {
        // As with a full disk, the next change or the end tries again.
        written = false;
    }
    if (written) {
        m_writtenGeneration = copied;
    } else if (!m_failing) {
        LODESTAR_LOG("Shared/Application/Model/FileUserDefaults", "synchronize",
                     "{} could not be written. The next change tries again.", m_path);
    }
    m_failing = !written;
    return written;
}

} // namespace lodestar

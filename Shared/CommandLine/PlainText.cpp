// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/PlainText.h"

#include <algorithm>
#include <cstdint>
#include <utf8proc.h>
#include <utility>

namespace lodestar
{
namespace
{

constexpr utf8proc_int32_t notAText = -1;
constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr std::string_view ellipsis = "…";

struct Letter {
    std::string_view bytes;
    utf8proc_int32_t code; ///< `notAText` for a byte that is no UTF-8
};

Letter firstLetter(std::string_view text)
{
    utf8proc_int32_t code = notAText;
    const auto* const bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    const auto length = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &code);
    return length > 0 ? Letter{text.substr(0, static_cast<std::size_t>(length)), code}
                      : Letter{text.substr(0, 1), notAText};
}

bool endsLine(utf8proc_int32_t code)
{
    constexpr utf8proc_int32_t nextLine = 0x85;
    return (code >= '\t' && code <= '\r') || code == nextLine || code == 0x2028 || code == 0x2029;
}

/// Embeddings, overrides, isolates and marks. One without its end would reach into the line.
bool turnsDirection(utf8proc_int32_t code)
{
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069) || code == 0x200E ||
           code == 0x200F || code == 0x061C;
}

std::size_t columnsOf(const Letter& letter)
{
    return letter.code == notAText ? 1 : static_cast<std::size_t>(std::max(0, utf8proc_charwidth(letter.code)));
}

/// The longest beginning with at most so many columns; at least one letter, so that callers move on.
std::string_view beginningOf(std::string_view text, std::size_t columns)
{
    std::size_t taken = 0;
    std::size_t width = 0;
    while (taken < text.size()) {
        const Letter letter = firstLetter(text.substr(taken));
        width += columnsOf(letter);
        if (width > columns && taken > 0) {
            break;
        }
        taken += letter.bytes.size();
    }
    return text.substr(0, taken);
}

} // namespace

std::string plainText(std::string_view text)
{
    std::string line;
    line.reserve(text.size());
    while (!text.empty()) {
        const Letter letter = firstLetter(text);
        text.remove_prefix(letter.bytes.size());
        if (letter.code == notAText) {
            line.append(replacement);
        } else if (endsLine(letter.code)) {
            line.append(line.ends_with(' ') ? "" : " ");
        } else if (utf8proc_category(letter.code) != UTF8PROC_CATEGORY_CC && !turnsDirection(letter.code)) {
            line.append(letter.bytes);
        }
    }
    return line;
}

std::size_t columnsOf(std::string_view text)
{
    std::size_t columns = 0;
    while (!text.empty()) {
        const Letter letter = firstLetter(text);
        columns += columnsOf(letter);
        text.remove_prefix(letter.bytes.size());
    }
    return columns;
}

std::string cutTo(std::string_view text, std::size_t columns)
{
    if (columnsOf(text) <= columns) {
        return std::string(text);
    }
    return columns <= 1 ? std::string(ellipsis) : std::string(beginningOf(text, columns - 1)) + std::string(ellipsis);
}

std::vector<std::string> wrapped(std::string_view text, std::size_t columns)
{
    std::vector<std::string> lines;
    for (std::string_view line = beginningOf(text, columns); line.size() < text.size();
         line = beginningOf(text, columns)) {
        const bool endsWord = text[line.size()] == ' ';
        if (const std::size_t blank = line.rfind(' '); !endsWord && blank != std::string_view::npos && blank > 0) {
            line = line.substr(0, blank);
        }
        text.remove_prefix(line.size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        lines.emplace_back(line);
    }
    if (!text.empty() || lines.empty()) {
        lines.emplace_back(text);
    }
    return lines;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ServiceReport.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <utf8proc.h>

namespace lodestar
{
namespace
{

constexpr std::string_view firstStrongIsolate = "\u2068";
constexpr std::string_view popIsolate = "\u2069";

bool endsLine(utf8proc_int32_t letter)
{
    return (letter >= 0x09 && letter <= 0x0D) || letter == 0x85 || letter == 0x2028 || letter == 0x2029;
}

/// Embeddings, overrides and isolates. One without its end would reach into the rest of the report.
bool turnsDirection(utf8proc_int32_t letter)
{
    return (letter >= 0x202A && letter <= 0x202E) || (letter >= 0x2066 && letter <= 0x2069);
}

bool runsRightToLeft(utf8proc_int32_t letter)
{
    const auto direction = utf8proc_get_property(letter)->bidi_class;
    return direction == UTF8PROC_BIDI_CLASS_R || direction == UTF8PROC_BIDI_CLASS_AL ||
           direction == UTF8PROC_BIDI_CLASS_AN;
}

/// Without blanks around it, which mean something in Markdown.
std::string asLine(std::string_view text)
{
    std::string line;
    bool isolates = false;
    const auto* at = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    for (auto left = static_cast<utf8proc_ssize_t>(text.size()); left > 0;) {
        utf8proc_int32_t letter = 0;
        const utf8proc_ssize_t length = utf8proc_iterate(at, left, &letter);
        const utf8proc_ssize_t step = std::max<utf8proc_ssize_t>(length, 1);
        if (length < 0) {
            line += "\uFFFD";
        } else if (letter == ' ' || endsLine(letter)) {
            line += line.empty() || (letter != ' ' && line.ends_with(' ')) ? "" : " ";
        } else if (utf8proc_category(letter) != UTF8PROC_CATEGORY_CC && !turnsDirection(letter)) {
            line.append(reinterpret_cast<const char*>(at), static_cast<std::size_t>(length));
            isolates = isolates || runsRightToLeft(letter);
        }
        at += step;
        left -= step;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return isolates ? std::string(firstStrongIsolate) + line + std::string(popIsolate) : line;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

char lower(char c)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

/// The length of the address in numbers, of the fourth or sixth version, that begins the text; 0 for none.
std::size_t numericAddress(std::string_view text)
{
    const std::size_t end = std::min(text.find_first_not_of("0123456789abcdefABCDEF:."), text.size());
    const std::string_view token = text.substr(0, end);
    const auto colons = std::ranges::count(token, ':');
    if (token.find("::") != std::string_view::npos || colons == 7) {
        return token.find_last_not_of(".:") == std::string_view::npos ? 0 : token.find_last_not_of('.') + 1;
    }
    std::size_t at = 0;
    for (int part = 0; part < 4; ++part) {
        unsigned number = 0;
        const auto [next, error] = std::from_chars(token.data() + at, token.data() + token.size(), number);
        if (error != std::errc() || number > 255) {
            return 0;
        }
        at = static_cast<std::size_t>(next - token.data());
        if (part < 3 && (at >= token.size() || token[at++] != '.')) {
            return 0;
        }
    }
    return at;
}

/// -1 without one.
utf8proc_int32_t firstLetter(std::string_view text)
{
    utf8proc_int32_t letter = -1;
    utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
                     &letter);
    return letter;
}

utf8proc_int32_t lastLetter(std::string_view text)
{
    std::size_t begin = text.empty() ? 0 : text.size() - 1;
    while (begin > 0 && (static_cast<unsigned char>(text[begin]) & 0xC0U) == 0x80U) {
        --begin;
    }
    return firstLetter(text.substr(begin));
}

/// Whether an address with this letter at its end is only a part of a word that has the other letter beside it. Letters
/// of another alphabet begin a word of their own: Japanese puts no blanks around an address.
bool goesOn(utf8proc_int32_t end, utf8proc_int32_t beside)
{
    constexpr utf8proc_int32_t plainLetters = 0x80;
    const auto category = utf8proc_category(beside);
    return category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_NO &&
           (end < plainLetters) == (beside < plainLetters);
}

/// Whether the address is no part of something longer. A number with more than four parts is none.
bool standsAlone(std::string_view before, std::string_view address, std::string_view behind)
{
    const bool numberGoesOn =
        (isDigit(address.front()) && before.size() > 1 && before.back() == '.' && isDigit(before[before.size() - 2])) ||
        (isDigit(address.back()) && behind.size() > 1 && behind[0] == '.' && isDigit(behind[1]));
    return !numberGoesOn && !goesOn(firstLetter(address), lastLetter(before)) &&
           !goesOn(lastLetter(address), firstLetter(behind));
}

/// The length of the address that stands at this place; 0 for none.
std::size_t addressLength(std::string_view text, std::size_t at, const std::vector<std::string>& known)
{
    const std::string_view rest = text.substr(at);
    const auto lengthIfAlone = [&](std::size_t length) {
        return length > 0 && standsAlone(text.substr(0, at), rest.substr(0, length), rest.substr(length)) ? length : 0;
    };
    std::size_t longest = lengthIfAlone(numericAddress(rest));
    for (const std::string& address : known) {
        if (std::ranges::equal(address, rest.substr(0, address.size()), {}, lower, lower)) {
            longest = std::max(longest, lengthIfAlone(address.size()));
        }
    }
    return longest;
}

void removeAddresses(std::string& text, const std::vector<std::string>& known, std::string_view mark)
{
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = addressLength(text, at, known);
        if (length > 0) {
            text.replace(at, length, mark);
            at += mark.size();
        } else {
            ++at;
        }
    }
}

/// Applies a function to each text that a console wrote.
template <typename Change>
ServiceReport changed(ServiceReport report, Change change)
{
    change(report.title);
    change(report.text);
    for (ServiceReport::Block& block : report.blocks) {
        for (ServiceReport::Line& line : block) {
            change(line.value);
        }
    }
    return report;
}

/// Also of what some readers of Markdown add: struck text, links of bare addresses, mentions, numbers of issues.
std::string escaped(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view rest = text.substr(at);
        const bool isMark = std::string_view("\\`*_{}[]<>#|~&!@$").find(text[at]) != std::string_view::npos;
        const bool startsLink = rest.starts_with("://") || (at >= 3 && rest[0] == '.' && lower(text[at - 1]) == 'w');
        const bool startsBlock = at == 0 && std::string_view("+-=").find(text[at]) != std::string_view::npos;
        result += isMark || startsLink || startsBlock ? "\\" : "";
        result += text[at];
    }
    // A number with a full stop or a bracket at the start of a line begins a list.
    const std::size_t digits = std::min(result.find_first_not_of("0123456789"), result.size());
    if (digits > 0 && digits < result.size() && (result[digits] == '.' || result[digits] == ')')) {
        result.insert(digits, "\\");
    }
    return result;
}

/// `lineEnd` stands between lines of one block, `write` makes the line.
template <typename Write>
std::string joined(const ServiceReport::Block& block, std::string_view lineEnd, Write write)
{
    std::string text;
    for (const ServiceReport::Line& line : block) {
        text += (text.empty() ? "" : lineEnd);
        text += write(line);
    }
    return text;
}

} // namespace

ServiceReport inLines(const ServiceReport& report)
{
    return changed(report, [](std::string& text) { text = asLine(text); });
}

ServiceReport withoutAddresses(ServiceReport report, const std::vector<std::string>& known, std::string_view mark)
{
    std::vector<std::string> named = known;
    std::erase(named, "");
    return changed(std::move(report), [&](std::string& text) { removeAddresses(text, named, mark); });
}

std::string plainText(const ServiceReport& report)
{
    const ServiceReport lines = inLines(report);
    std::string text = lines.title + "\n";
    if (!lines.text.empty()) {
        text += "\n" + lines.text + "\n";
    }
    for (const ServiceReport::Block& block : lines.blocks) {
        text += "\n" +
                joined(block, "\n",
                       [](const ServiceReport::Line& line) {
                           return line.label.empty() ? line.value : line.label + ": " + line.value;
                       }) +
                "\n";
    }
    return text;
}

std::string markdownText(const ServiceReport& report)
{
    const ServiceReport lines = inLines(report);
    std::string text = "## " + escaped(lines.title) + "\n";
    if (!lines.text.empty()) {
        text += "\n" + escaped(lines.text) + "\n";
    }
    for (const ServiceReport::Block& block : lines.blocks) {
        // Two blanks end a line within a paragraph.
        text += "\n" +
                joined(block, "  \n",
                       [](const ServiceReport::Line& line) {
                           return line.label.empty() ? escaped(line.value)
                                                     : "**" + escaped(line.label) + ":** " + escaped(line.value);
                       }) +
                "\n";
    }
    return text;
}

} // namespace lodestar

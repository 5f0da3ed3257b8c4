// SPDX-License-Identifier: Apache-2.0
#include "Inventory/FoldedText.h"

#include <algorithm>
#include <array>
#include <utf8proc.h>
#include <vector>

namespace lodestar
{
namespace
{

constexpr utf8proc_int32_t replacement = 0xFFFD;
/// No letter folds to more; one that did would be kept as it is.
constexpr std::size_t mostLetters = 18;

constexpr char foldedByte(char byte)
{
    if (byte >= 'A' && byte <= 'Z') {
        return static_cast<char>(byte + ('a' - 'A'));
    }
    return (byte >= 0 && byte < ' ') || byte == '\x7F' ? ' ' : byte;
}

constexpr bool isASCII(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

struct Stroked {
    utf8proc_int32_t letter;
    char plain;
};
/// Letters whose stroke or missing dot is no mark of its own to Unicode.
constexpr std::array<Stroked, 7> strokedLetters = {
    {{0xF8, 'o'}, {0x111, 'd'}, {0x127, 'h'}, {0x131, 'i'}, {0x142, 'l'}, {0x167, 't'}, {0x180, 'b'}}};

utf8proc_int32_t withoutStroke(utf8proc_int32_t letter)
{
    const auto* const stroked = std::ranges::find(strokedLetters, letter, &Stroked::letter);
    return stroked != strokedLetters.end() ? stroked->plain : letter;
}

bool isBlank(utf8proc_int32_t letter)
{
    return letter == 0x85 || letter == 0x2028 || letter == 0x2029 || letter == 0xA0;
}

void append(std::string& folded, utf8proc_int32_t letter)
{
    std::array<utf8proc_uint8_t, 4> bytes{};
    const auto count = utf8proc_encode_char(letter, bytes.data());
    folded.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(count));
}

/// Appends the folded first letter of the text, nothing for a mark, and returns how many bytes the letter has.
std::size_t appendLetter(std::string& folded, std::string_view text)
{
    utf8proc_int32_t letter = replacement;
    const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                         static_cast<utf8proc_ssize_t>(text.size()), &letter);
    if (length <= 0) {
        append(folded, replacement);
        return 1;
    }
    if (isBlank(letter)) {
        folded.push_back(' ');
        return static_cast<std::size_t>(length);
    }
    std::array<utf8proc_int32_t, mostLetters> letters{};
    int boundary = 0;
    const auto options = static_cast<utf8proc_option_t>(UTF8PROC_CASEFOLD | UTF8PROC_DECOMPOSE | UTF8PROC_STRIPMARK);
    const auto count = utf8proc_decompose_char(letter, letters.data(), mostLetters, options, &boundary);
    if (count < 0 || static_cast<std::size_t>(count) > mostLetters) {
        append(folded, letter);
    } else {
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
            append(folded, withoutStroke(letters[i]));
        }
    }
    return static_cast<std::size_t>(length);
}

} // namespace

void appendFolded(std::string& folded, std::string_view text)
{
    while (!text.empty()) {
        const auto* const plainEnd = std::ranges::find_if_not(text, isASCII);
        const auto plain = static_cast<std::size_t>(plainEnd - text.begin());
        const std::size_t begin = folded.size();
        folded.append(text.substr(0, plain));
        std::transform(folded.begin() + static_cast<std::ptrdiff_t>(begin), folded.end(),
                       folded.begin() + static_cast<std::ptrdiff_t>(begin), foldedByte);
        text.remove_prefix(plain);
        if (!text.empty()) {
            text.remove_prefix(appendLetter(folded, text));
        }
    }
}

std::string foldedText(std::string_view text)
{
    std::string folded;
    appendFolded(folded, text);
    return folded;
}

std::optional<TextPart> firstFoldedMatch(std::string_view text, std::string_view wanted)
{
    if (wanted.empty()) {
        return {};
    }
    // The place in the text of each byte of the folded text.
    std::string folded;
    std::vector<std::size_t> places;
    std::size_t place = 0;
    while (place < text.size()) {
        std::size_t length = 1;
        if (isASCII(text[place])) {
            folded.push_back(foldedByte(text[place]));
        } else {
            length = appendLetter(folded, text.substr(place));
        }
        places.resize(folded.size(), place);
        place += length;
    }
    const std::size_t found = folded.find(wanted);
    if (found == std::string::npos) {
        return {};
    }
    const std::size_t start = places[found];
    const std::size_t last = places[found + wanted.size() - 1];
    // Up to the letter after the last one that shows; marks that follow it belong to it.
    const auto after = std::upper_bound(places.begin(), places.end(), last);
    return TextPart{start, (after != places.end() ? *after : text.size()) - start};
}

} // namespace lodestar

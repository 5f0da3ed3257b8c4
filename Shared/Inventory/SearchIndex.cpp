// SPDX-License-Identifier: Apache-2.0
#include "Inventory/SearchIndex.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <utf8proc.h>

namespace lodestar
{
namespace
{

constexpr char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool isASCII(std::string_view text)
{
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// Folds one letter to one letter. So "ß" is found by "ß" and not by "ss": half of a letter could not be marked.
utf8proc_int32_t foldedLetter(utf8proc_int32_t letter)
{
    utf8proc_int32_t folded = letter;
    int boundary = 0;
    const auto count = utf8proc_decompose_char(letter, &folded, 1, UTF8PROC_CASEFOLD, &boundary);
    return count == 1 ? folded : utf8proc_tolower(letter);
}

/// Replaces bytes that are not UTF-8 by the replacement character.
std::string foldedUnicode(std::string_view text)
{
    constexpr utf8proc_int32_t replacement = 0xFFFD;
    std::string result;
    while (!text.empty()) {
        utf8proc_int32_t letter = replacement;
        const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                             static_cast<utf8proc_ssize_t>(text.size()), &letter);
        text.remove_prefix(length > 0 ? static_cast<std::size_t>(length) : 1);
        std::array<utf8proc_uint8_t, 4> bytes{};
        const auto count = utf8proc_encode_char(foldedLetter(length > 0 ? letter : replacement), bytes.data());
        result.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(count));
    }
    return result;
}

std::string folded(std::string_view text)
{
    if (!isASCII(text)) {
        return foldedUnicode(text);
    }
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

} // namespace

void SearchIndex::add(std::string_view name)
{
    m_names.append(folded(name));
    m_names.push_back('\0');
    m_ends.push_back(m_names.size());
}

std::vector<std::uint32_t> SearchIndex::rowsContaining(std::string_view text) const
{
    std::vector<std::uint32_t> rows;
    if (text.empty()) {
        rows.resize(m_ends.size());
        std::iota(rows.begin(), rows.end(), std::uint32_t{0});
        return rows;
    }
    // A NUL could only match the end of a name.
    if (text.find('\0') != std::string_view::npos) {
        return rows;
    }
    const std::string wanted = folded(text);
    // Where the first letter is a common one, this is several times as fast as the string's own search.
    const auto find = [&](std::size_t from) {
        return static_cast<const char*>(
            ::memmem(m_names.data() + from, m_names.size() - from, wanted.data(), wanted.size()));
    };
    std::uint32_t row = 0;
    for (const char* found = find(0); found != nullptr; found = find(m_ends[row])) {
        const auto at = static_cast<std::size_t>(found - m_names.data());
        while (m_ends[row] <= at) {
            ++row;
        }
        rows.push_back(row);
    }
    return rows;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/SearchIndex.h"

#include <QString>

#include <algorithm>
#include <numeric>

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

} // namespace

std::string SearchIndex::folded(std::string_view text)
{
    if (!isASCII(text)) {
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toCaseFolded().toStdString();
    }
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

void SearchIndex::add(std::string_view name)
{
    if (isASCII(name)) {
        const std::size_t start = m_names.size();
        m_names.append(name);
        std::transform(m_names.begin() + static_cast<std::ptrdiff_t>(start), m_names.end(),
                       m_names.begin() + static_cast<std::ptrdiff_t>(start), lower);
    } else {
        m_names.append(folded(name));
    }
    m_names.push_back('\0');
    m_ends.push_back(m_names.size());
}

void SearchIndex::add(const SearchIndex& other)
{
    const std::size_t offset = m_names.size();
    m_names.append(other.m_names);
    m_ends.reserve(m_ends.size() + other.m_ends.size());
    std::ranges::transform(other.m_ends, std::back_inserter(m_ends),
                           [offset](std::size_t end) { return end + offset; });
}

std::vector<std::size_t> SearchIndex::rowsContaining(std::string_view text) const
{
    std::vector<std::size_t> rows;
    if (text.empty()) {
        rows.resize(m_ends.size());
        std::iota(rows.begin(), rows.end(), std::size_t{0});
        return rows;
    }
    // It could only match across the end of a name.
    if (text.find('\0') != std::string_view::npos) {
        return rows;
    }
    const std::string wanted = folded(text);
    const std::string_view names = m_names;
    std::size_t row = 0;
    for (std::size_t at = names.find(wanted); at != std::string_view::npos; at = names.find(wanted, m_ends[row])) {
        while (m_ends[row] <= at) {
            ++row;
        }
        rows.push_back(row);
    }
    return rows;
}

} // namespace lodestar

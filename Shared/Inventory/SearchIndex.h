// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The names of a list's rows in one stretch of bytes, with case removed, so that each keystroke needs only one pass.
/// Case is ignored in every script; accents are not. A value; no thread may change it while another reads it.
class SearchIndex
{
public:
    /// Adds the next row's name, in UTF-8.
    void add(std::string_view name);
    std::size_t size() const { return m_ends.size(); }
    /// The rows whose name contains the text, in order. Every name contains the empty text.
    std::vector<std::uint32_t> rowsContaining(std::string_view text) const;

private:
    std::string m_names;             ///< each name ends with a NUL, which no name in a feed contains
    std::vector<std::size_t> m_ends; ///< for each row, the place after its NUL
};

} // namespace lodestar

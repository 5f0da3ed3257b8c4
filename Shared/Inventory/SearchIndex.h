// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The names of a list's rows, folded once, so that a keystroke is one pass over one stretch of bytes. Case plays no
/// part, in any script; accents do. A value; not to be changed by one thread while another reads it.
class SearchIndex
{
public:
    /// The next row's name, in UTF-8.
    void add(std::string_view name);
    std::size_t size() const { return m_ends.size(); }
    /// The rows whose name contains the text, in order. An empty text is in every name.
    std::vector<std::uint32_t> rowsContaining(std::string_view text) const;

    static std::string folded(std::string_view text);

private:
    std::string m_names;             ///< each ended by a NUL, which no name of a feed holds
    std::vector<std::size_t> m_ends; ///< one past each row's NUL
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "XML/XMLArray.h"

#include <cstdint>
#include <string_view>

namespace lodestar
{

/// The distinct names of a document, numbered from 0 in the order of their first use: one text, where each name lies in
/// it, and a hash table of numbers.
class XMLNames
{
public:
    using Name = std::uint16_t;
    static constexpr Name none = UINT16_MAX;

    /// `none` for a name that is not there.
    Name find(std::string_view name) const;
    /// The name's number, a new one if need be; `none` when there are too many. Throws `std::bad_alloc`; the names are
    /// of no use then.
    Name intern(std::string_view name);
    std::string_view text(Name name) const
    {
        const Place& place = m_places[name];
        return {m_text.data() + place.begin, place.length};
    }
    void shrinkToFit();
    std::size_t memory() const { return m_text.memory() + m_places.memory() + m_slots.memory(); }

private:
    struct Place {
        std::uint32_t begin;
        std::uint32_t length;
    };
    /// The slot that holds the name, or the free one where it would go. There must be a slot that is free.
    std::size_t slotOf(std::string_view name) const;
    void rehash(std::size_t slots);

    XMLArray<char> m_text;
    XMLArray<Place> m_places;
    XMLArray<Name> m_slots; ///< a power of two of them, at most half in use
};

} // namespace lodestar

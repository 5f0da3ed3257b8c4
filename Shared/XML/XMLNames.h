// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "XML/XMLArray.h"

#include <cstdint>
#include <string_view>

namespace lodestar
{

/// The distinct names of a document, numbered from 0 in the order of their first use. They are kept as one text, the
/// place of each name in it, and a hash table of numbers.
class XMLNames
{
public:
    using Name = std::uint16_t;
    static constexpr Name none = UINT16_MAX;

    /// `none` when the name is not there.
    Name find(std::string_view name) const;
    /// The name's number; a new one for a new name. `none` when there are too many. After it throws `std::bad_alloc`
    /// the object must not be used.
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
    /// The slot that holds the name, or the free slot for it. At least one slot must be free.
    std::size_t slotOf(std::string_view name) const;
    void rehash(std::size_t slots);

    XMLArray<char> m_text;
    XMLArray<Place> m_places;
    XMLArray<Name> m_slots; ///< the number of slots is a power of two; at most half are in use
};

} // namespace lodestar

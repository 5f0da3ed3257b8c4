// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLNames.h"

#include <functional>

namespace lodestar
{

std::size_t XMLNames::slotOf(std::string_view name) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = std::hash<std::string_view>()(name) & mask;
    while (m_slots[slot] != none && text(m_slots[slot]) != name) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

XMLNames::Name XMLNames::find(std::string_view name) const
{
    return m_slots.empty() ? none : m_slots[slotOf(name)];
}

XMLNames::Name XMLNames::intern(std::string_view name)
{
    if (const Name known = find(name); known != none) {
        return known;
    }
    if (m_places.size() >= none) {
        return none;
    }
    if ((m_places.size() + 1) * 2 > m_slots.size()) {
        constexpr std::size_t first = 64;
        rehash(m_slots.empty() ? first : m_slots.size() * 2);
    }
    const auto number = static_cast<Name>(m_places.size());
    const auto begin = static_cast<std::uint32_t>(m_text.size());
    m_text.append(name.data(), name.size());
    m_places.push_back({begin, static_cast<std::uint32_t>(name.size())});
    m_slots[slotOf(name)] = number;
    return number;
}

void XMLNames::rehash(std::size_t slots)
{
    while (m_slots.size() < slots) {
        m_slots.push_back(none);
    }
    for (std::size_t i = 0; i < slots; ++i) {
        m_slots[i] = none;
    }
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        m_slots[slotOf(text(static_cast<Name>(i)))] = static_cast<Name>(i);
    }
}

void XMLNames::shrinkToFit()
{
    m_text.shrinkToFit();
    m_places.shrinkToFit();
    m_slots.shrinkToFit();
}

} // namespace lodestar

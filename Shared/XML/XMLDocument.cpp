// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLDocument.h"

#include <algorithm>

namespace lodestar
{

std::string_view XMLDocument::text(Index index) const
{
    const Node& node = m_nodes[index];
    if (node.descendants == isLarge) {
        const Large& wide = large(index);
        return {m_text.data() + wide.text, wide.textEnd - wide.text};
    }
    return {m_text.data() + m_blocks[index / blockSize].text + node.text, node.textLength};
}

std::span<const XMLDocument::Attribute> XMLDocument::attributes(Index index) const
{
    const std::uint16_t number = m_nodes[index].list;
    if (number == 0) {
        return {};
    }
    return list(number < blocksLists ? number - 1U : m_blocks[index / blockSize].list + number - blocksLists);
}

const XMLDocument::Attribute* XMLDocument::attribute(Index index, Name name) const
{
    for (const Attribute& attribute : attributes(index)) {
        if (attribute.name == name) {
            return &attribute;
        }
    }
    return nullptr;
}

std::string_view XMLDocument::value(const Attribute& attribute) const
{
    const Attribute* const next = &attribute + 1;
    const std::size_t end = next != m_attributes.data() + m_attributes.size() ? next->value : m_values.size();
    return {m_values.data() + attribute.value, end - attribute.value};
}

std::size_t XMLDocument::memory() const
{
    return sizeof *this + m_nodes.memory() + m_blocks.memory() + m_large.memory() + m_lists.memory() +
           m_attributes.memory() + m_text.memory() + m_values.memory() + m_names.memory();
}

const XMLDocument::Large& XMLDocument::large(Index index) const
{
    const Large* const end = m_large.data() + m_large.size();
    return *std::lower_bound(m_large.data(), end, index,
                             [](const Large& each, Index wanted) { return each.node < wanted; });
}

std::span<const XMLDocument::Attribute> XMLDocument::list(std::size_t number) const
{
    const std::size_t begin = m_lists[number];
    const std::size_t end = number + 1 < m_lists.size() ? m_lists[number + 1] : m_attributes.size();
    return {m_attributes.data() + begin, end - begin};
}

} // namespace lodestar

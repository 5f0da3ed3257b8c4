// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/XMLDocument.h"

#include "Controllers/REST/XMLDocumentBuilder.h"

#include <new>

namespace lodestar
{

Result<std::shared_ptr<const XMLDocument>> XMLDocument::parse(const char* bytes, std::size_t size)
{
    // Also what is made before the first event, and after the last, may find no memory.
    try {
        return XMLDocumentBuilder().run({bytes, size});
    } catch (const std::bad_alloc&) {
        return XMLDocumentBuilder::outOfMemory();
    }
}

std::string_view XMLDocument::text(Index index) const
{
    const Node& node = m_nodes[index];
    return {m_text.data() + node.text, node.textEnd - node.text};
}

std::span<const XMLDocument::Attribute> XMLDocument::attributes(Index index) const
{
    const std::size_t begin = m_nodes[index].attributes;
    const std::size_t end = index + 1 < m_nodes.size() ? m_nodes[index + 1].attributes : m_attributes.size();
    return {m_attributes.data() + begin, end - begin};
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
    return {m_values.data() + attribute.value, attribute.valueLength};
}

std::size_t XMLDocument::memory() const
{
    return sizeof *this + m_nodes.memory() + m_attributes.memory() + m_text.memory() + m_values.memory() +
           m_names.memory();
}

} // namespace lodestar

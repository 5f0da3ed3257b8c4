// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/XMLDocument.h"

#include "Controllers/REST/XMLDocumentBuilder.h"

namespace lodestar
{

Result<std::shared_ptr<const XMLDocument>> XMLDocument::parse(std::string_view bytes)
{
    return XMLDocumentBuilder(bytes.size()).run(bytes);
}

XMLDocument::Name XMLDocument::find(std::string_view name) const
{
    const auto known = m_nameIds.find(name);
    return known != m_nameIds.end() ? known->second : noName;
}

std::string_view XMLDocument::text(Index index) const
{
    const Node& node = m_nodes[index];
    return std::string_view(m_text).substr(node.text, node.textEnd - node.text);
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
    return std::string_view(m_values).substr(attribute.value, attribute.valueLength);
}

std::size_t XMLDocument::memory() const
{
    std::size_t names = 0;
    for (const std::string& name : m_names) {
        names += sizeof(std::string) + name.capacity();
    }
    return sizeof *this + m_nodes.capacity() * sizeof(Node) + m_attributes.capacity() * sizeof(Attribute) +
           m_text.capacity() + m_values.capacity() + names +
           m_nameIds.size() * (sizeof(std::string_view) + sizeof(Name) + 2 * sizeof(void*));
}

} // namespace lodestar

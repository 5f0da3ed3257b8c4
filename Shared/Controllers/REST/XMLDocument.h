// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/KeptBytes.h"
#include "Controllers/REST/XMLArray.h"
#include "Controllers/REST/XMLNames.h"
#include "Platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace lodestar
{

/// A parsed document as a flat arena, never changed once built.
///
/// Elements stand in document order, so that an element's descendants are the range up to its `end` and no links are
/// needed. All character data stands in one buffer in document order as well: the text below an element is one slice.
class XMLDocument
{
public:
    using Index = std::uint32_t;
    using Name = XMLNames::Name;

    struct Node {
        Name name;
        Index end;             ///< one past the last descendant
        std::uint32_t text;    ///< where the text below begins
        std::uint32_t textEnd; ///< and one past its end
        Index attributes;      ///< the first attribute; the next node's is one past the last
    };
    struct Attribute {
        Name name;
        std::uint32_t value;
        std::uint32_t valueLength;
    };
    static constexpr Name noName = XMLNames::none;

    /// Null when no document, or one without a root, can be made of the bytes. A zero must stand after them.
    static Result<std::shared_ptr<const XMLDocument>> parse(const char* bytes, std::size_t size);

    const Node& node(Index index) const { return m_nodes[index]; }
    Index childrenBegin(Index index) const { return index + 1; }
    std::string_view nameText(Name name) const { return m_names.text(name); }
    /// `noName` when the document has no such name.
    Name find(std::string_view name) const { return m_names.find(name); }
    std::string_view text(Index index) const;
    std::span<const Attribute> attributes(Index index) const;
    /// Null when the element has no such attribute.
    const Attribute* attribute(Index index, Name name) const;
    std::string_view value(const Attribute& attribute) const;
    std::size_t memory() const;

private:
    friend class XMLDocumentBuilder;

    XMLArray<Node> m_nodes;
    XMLArray<Attribute> m_attributes;
    XMLArray<char> m_text;
    XMLArray<char> m_values;
    XMLNames m_names;
    KeptBytes m_kept;
};

} // namespace lodestar

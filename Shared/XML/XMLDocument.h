// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"
#include "XML/KeptBytes.h"
#include "XML/XMLArray.h"
#include "XML/XMLNames.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace lodestar
{

/// A parsed document as a flat arena, never changed once built. It takes about half of the bytes of a feed.
///
/// Elements stand in document order, so that an element's descendants are the range up to its `end` and no links are
/// needed. All character data stands in one buffer in document order as well: the text below an element is one slice.
/// Tags with equal attributes share one list of them.
class XMLDocument
{
public:
    using Index = std::uint32_t;
    using Name = XMLNames::Name;

    /// The value ends where the next attribute's begins.
    struct Attribute {
        Name name;
        std::uint32_t value;
    };
    static constexpr Name noName = XMLNames::none;

    /// Null when no document, or one without a root, can be made of the bytes. A zero must stand after them.
    static Result<std::shared_ptr<const XMLDocument>> parse(const char* bytes, std::size_t size);

    Name name(Index index) const { return m_nodes[index].name; }
    Index childrenBegin(Index index) const { return index + 1; }
    /// One past the last descendant.
    Index end(Index index) const
    {
        const std::uint16_t descendants = m_nodes[index].descendants;
        return descendants != isLarge ? index + 1 + descendants : large(index).end;
    }
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

    /// Lists before this one have a number of their own in a node; the node of a later one is in the list's block.
    static constexpr std::uint16_t blocksLists = 0x8000;
    static constexpr std::uint16_t isLarge = UINT16_MAX;
    static constexpr Index blockSize = 64;

    /// What an element is, in 16 bits each.
    struct Node {
        Name name;
        std::uint16_t list;        ///< one more than the list's number; from `blocksLists` on, counted in the block
        std::uint16_t descendants; ///< `isLarge` where this, `text` or `textLength` takes more than 16 bits
        std::uint16_t text;        ///< where the text below begins, counted from the block's
        std::uint16_t textLength;
    };
    /// What the nodes of a block count from.
    struct Block {
        std::uint32_t text;
        std::uint32_t list;
    };
    /// An element that is too large, or stands after too much text, for its node. There are few: each has 64 KB in it,
    /// or in its block.
    struct Large {
        Index node;
        Index end;
        std::uint32_t text;
        std::uint32_t textEnd;
    };

    const Large& large(Index index) const;
    std::span<const Attribute> list(std::size_t number) const;

    XMLArray<Node> m_nodes;
    XMLArray<Block> m_blocks;
    XMLArray<Large> m_large;         ///< by `node`
    XMLArray<std::uint32_t> m_lists; ///< the first attribute of each list; the next list's is one past the last
    XMLArray<Attribute> m_attributes;
    XMLArray<char> m_text;
    XMLArray<char> m_values;
    XMLNames m_names;
    KeptBytes m_kept;
};

} // namespace lodestar

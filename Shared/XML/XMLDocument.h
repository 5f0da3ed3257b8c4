// SPDX-License-Identifier: Apache-2.0
#pragma once

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

/// A parsed document as a flat arena, never changed once built. It takes about half of a feed's bytes.
///
/// Elements are stored in document order: an element's descendants are the range up to its `end`, and no links are
/// needed. All character data is stored in one buffer in document order as well: the text below an element is one
/// slice. Tags with equal attributes share one list of attributes.
class XMLDocument
{
public:
    using Index = std::uint32_t;
    using Name = XMLNames::Name;

    /// The value ends where the next attribute's value begins.
    struct Attribute {
        Name name;
        std::uint32_t value;
    };
    static constexpr Name noName = XMLNames::none;

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

    /// A node holds the number of a list below this one directly; for a later list it holds the number relative to its
    /// block's first list.
    static constexpr std::uint16_t blocksLists = 0x8000;
    static constexpr std::uint16_t isLarge = UINT16_MAX;
    static constexpr Index blockSize = 64;

    /// One element; each member takes 16 bits.
    struct Node {
        Name name;
        /// 0 for no attributes, else the list's number plus one; from `blocksLists` on, relative to the block's `list`
        std::uint16_t list;
        std::uint16_t descendants; ///< `isLarge` when this, `text` or `textLength` needs more than 16 bits
        std::uint16_t text;        ///< where the text below the element begins, relative to the block's `text`
        std::uint16_t textLength;
    };
    /// The positions from which a block's nodes count.
    struct Block {
        std::uint32_t text;
        std::uint32_t list;
    };
    /// The positions of an element for which 16 bits are too few: the element is too large, or stands after too much
    /// text. Such elements are few: each, or its block, has 64 KB in it.
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
    XMLArray<Large> m_large;         ///< sorted by `node`
    XMLArray<std::uint32_t> m_lists; ///< each list's first attribute; a list ends where the next list begins
    XMLArray<Attribute> m_attributes;
    XMLArray<char> m_text;
    XMLArray<char> m_values;
    XMLNames m_names;
    KeptBytes m_kept;
};

} // namespace lodestar

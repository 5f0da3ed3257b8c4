// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

class XMLDocument;

/// An element of a parsed document, or no element. A cheap value: a shared document and an index. Names are local
/// names; prefixes are ignored. No element has no name, text, attributes or children. Any thread may read elements.
class XMLElement
{
public:
    XMLElement() = default;

    /// Parses leniently: keeps what can be salvaged of a damaged document. Bytes that make no document give no element;
    /// running out of memory is an error, never a shorter document. Entity references read as nothing, and no file or
    /// address is ever opened.
    ///
    /// Takes time in proportion to the number of bytes, whatever they are. A document with more than 2,500 errors plus
    /// one for every 64 bytes, or nested 256 levels deep, is cut at that point; what stands before is kept. The
    /// following are an error of the domain "XML", since a cut document would pass for a whole one: more than 4,096
    /// different names; more than 1,000 attributes in a tag (fewer where many tags have hundreds); more than 50,000
    /// elements plus one for every 12 bytes. For the last limit an attribute counts as half an element, the declaration
    /// of a name space as two.
    static Result<XMLElement> parse(const std::string& bytes);
    static Result<XMLElement> parse(const char* text) { return parse(std::string(text)); }
    /// Copies the bytes first, because the parser needs a zero byte at their end.
    static Result<XMLElement> parse(std::string_view bytes) { return parse(std::string(bytes)); }

    bool exists() const { return m_document != nullptr; }
    explicit operator bool() const { return exists(); }

    /// The local name; empty for no element. Views live as long as the document.
    std::string_view name() const;
    /// The first child element of that name.
    XMLElement child(std::string_view name) const { return path({name}); }
    /// All child elements of that name, in document order.
    std::vector<XMLElement> children(std::string_view name) const;
    /// Equals `children(name).size()`, but makes no elements.
    std::size_t childCount(std::string_view name) const;
    /// The text of the element and of all elements below it, in document order; none for no element.
    std::optional<std::string> text() const;
    std::optional<std::string> attribute(std::string_view name) const;

    /// Follows first children by name: `path({"entry", "content"})`.
    XMLElement path(std::initializer_list<std::string_view> names) const;

    /// Where the element stands in its document; 0 for the root. Who holds the document anyway can keep this instead of
    /// an element, and have the element back from any other one of the same document.
    std::uint32_t place() const { return m_index; }
    XMLElement at(std::uint32_t place) const { return exists() ? XMLElement(m_document, place) : XMLElement(); }

    /// The number of bytes that the element's whole document takes.
    std::size_t documentMemory() const;

    friend bool operator==(const XMLElement& a, const XMLElement& b)
    {
        return a.m_document == b.m_document && a.m_index == b.m_index;
    }

private:
    friend class XMLDocument;
    XMLElement(std::shared_ptr<const XMLDocument> document, std::uint32_t index)
        : m_document(std::move(document)), m_index(index)
    {
    }

    std::shared_ptr<const XMLDocument> m_document;
    std::uint32_t m_index = 0;
};

} // namespace lodestar

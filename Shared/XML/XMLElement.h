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

/// An element of a parsed document, or no element: a cheap value (a shared document and an index). Names are local
/// names; prefixes play no part. Asking no element for anything yields nothing. Elements may be read from any thread.
class XMLElement
{
public:
    XMLElement() = default;

    /// Parses leniently: what can be salvaged of a damaged document is kept. Bytes from which no document can be made
    /// give no element; running out of memory is an error, never a shorter document. Entity references read as nothing
    /// and no file or address is ever opened.
    ///
    /// Takes time in proportion to the bytes, whatever they are. Of a document with more than 2,500 errors and one for
    /// every 64 bytes, or nested 256 levels deep, what stands before that is kept, as of one that was cut there. More
    /// than 4,096 different names, than 1,000 attributes in a tag (fewer where many tags have hundreds), or than 50,000
    /// elements and one for every 12 bytes, are an error of domain "XML", since a whole document cut short would pass
    /// for all that there is. An attribute counts as half an element, the declaration of a name space as two.
    static Result<XMLElement> parse(const std::string& bytes);
    static Result<XMLElement> parse(const char* text) { return parse(std::string(text)); }
    /// Copies the bytes first: the parser wants to see where they end.
    static Result<XMLElement> parse(std::string_view bytes) { return parse(std::string(bytes)); }

    bool exists() const { return m_document != nullptr; }
    explicit operator bool() const { return exists(); }

    /// The local name; empty for no element. Views live as long as the document.
    std::string_view name() const;
    /// The first child element of the name.
    XMLElement child(std::string_view name) const;
    /// Every child element of the name, in document order.
    std::vector<XMLElement> children(std::string_view name) const;
    /// As `children(name).size()`, without making the elements.
    std::size_t childCount(std::string_view name) const;
    /// The text of the element and of all below it, in document order; nothing for no element.
    std::optional<std::string> text() const;
    std::optional<std::string> attribute(std::string_view name) const;

    /// Follows first children by name: `path({"entry", "content"})`.
    XMLElement path(std::initializer_list<std::string_view> names) const;

    /// Bytes held by the whole document that the element belongs to.
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

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"
#include "XML/XMLDeclarations.h"
#include "XML/XMLDocument.h"
#include "XML/XMLMemory.h"

#include <libxml/parser.h>

#include <array>
#include <cstdint>

namespace lodestar
{

/// Builds a document from libxml2's events. One parse, one thread; the static functions are the parser's callbacks. The
/// constructor may throw `std::bad_alloc`.
class XMLDocumentBuilder final : private XMLDeclarationState
{
public:
    /// Null when the bytes make no document, or a document without a root. A zero byte must follow the bytes.
    static Result<std::shared_ptr<const XMLDocument>> parse(const char* bytes, std::size_t size);

private:
    /// Runs the parse. Null without a root; an error when memory or the arena's indexes ran out. A zero byte must
    /// follow the bytes. Throws `std::bad_alloc`.
    Result<std::shared_ptr<const XMLDocument>> run(std::string_view bytes);

    /// Creating this error allocates nothing.
    static Error outOfMemory();

    static constexpr unsigned knownBits = 10;
    static constexpr unsigned knownListBits = 12;
    /// The address of the parser's only copy of a name, and whether the name had a prefix.
    struct KnownName {
        const xmlChar* at;
        bool prefixed;
        XMLDocument::Name name;
    };

    static XMLDocumentBuilder* builderOf(const xmlParserCtxt& parser)
    {
        return static_cast<XMLDocumentBuilder*>(static_cast<XMLDeclarationState*>(parser._private));
    }
    /// The parse's builder. Null once the parse is over, and for events from inside an entity's text: the parser checks
    /// that text with a context of its own when the entity is first named, and references read as nothing.
    static XMLDocumentBuilder* of(void* context)
    {
        auto* const parser = static_cast<xmlParserCtxtPtr>(context);
        XMLDocumentBuilder* const builder = builderOf(*parser);
        const bool isOver = builder->m_over || builder->refused;
        if (isOver && parser == builder->m_parser) {
            xmlStopParser(parser);
        }
        return parser == builder->m_parser && !isOver ? builder : nullptr;
    }
    static void startElement(void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                             int namespaceCount, const xmlChar** namespaces, int attributeCount, int defaultedCount,
                             const xmlChar** attributes);
    static void endElement(void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri);
    static void characters(void* context, const xmlChar* bytes, int length);
    static void noteError(void* context, xmlErrorPtr error);
    void end(xmlParserCtxt& parser);

    /// An element that is still open, and the position at which the text below it begins.
    struct OpenElement {
        XMLDocument::Index index;
        std::uint32_t text;
    };

    void setEvents(xmlSAXHandler& events) const;
    void countWork(std::size_t attributeCount, std::size_t namespaceCount);
    void countParts(std::size_t parts);
    static void countReference(void* context, const xmlChar* name);
    void reserve(std::size_t inputSize);
    void open(const xmlChar* localName, const xmlChar* prefix, const xmlChar** attributes, int attributeCount);
    void addAttribute(const xmlChar* localName, const xmlChar* prefix, std::string_view raw);
    bool isAsWritten(std::string_view value) const;
    /// Makes a list of the attributes from `begin` on and returns its number for a node of the last block. When an
    /// earlier list is equal, the attributes are dropped and that list's number is returned.
    std::uint16_t listFrom(std::size_t begin);
    bool isSame(std::span<const XMLDocument::Attribute> a, std::span<const XMLDocument::Attribute> b) const;
    /// Throws `std::bad_alloc`.
    void close();
    /// Closes elements that the parser gave up without an event because their start tag breaks off: what follows
    /// belongs to the parent.
    void closeAbandoned()
    {
        while (m_open.size() > static_cast<std::size_t>(m_parser->nameNr)) {
            close();
        }
    }
    /// The number of a local name.
    XMLDocument::Name nameOf(const xmlChar* name, const xmlChar* prefix)
    {
        constexpr std::uint64_t spread = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio
        KnownName& known = m_known[reinterpret_cast<std::uintptr_t>(name) * spread >> (64U - knownBits)];
        if (known.at != name || known.prefixed != (prefix != nullptr)) {
            known = {name, prefix != nullptr, internLocalPart(name, prefix)};
        }
        return known.name;
    }
    XMLDocument::Name internLocalPart(const xmlChar* name, const xmlChar* prefix);
    /// Takes a larger share of memory for the document as it is now. False, with the parse ended, when the device has
    /// no room.
    bool keep();
    void fail(Error error);
    void finish();

    XMLMemoryWatch m_memory;
    std::shared_ptr<XMLDocument> m_document = std::make_shared<XMLDocument>();
    XMLArray<OpenElement> m_open;
    std::array<KnownName, std::size_t{1} << knownBits>
        m_known{}; ///< a cache by address; a name that another has displaced is looked up by its text
    /// A cache by a list's contents: the list's number plus one; 0 for none.
    std::array<std::uint16_t, std::size_t{1} << knownListBits> m_knownLists{};
    xmlParserCtxtPtr m_parser = nullptr;
    std::size_t m_errorsLeft = 0;
    std::size_t m_comparisonsLeft = 0;
    std::size_t m_partsLeft = 0;
    std::size_t m_nextLook = 0; ///< the number of nodes and attributes at which `keep` is due
    bool m_isInText = false;    ///< the last event was text: more of it follows a reference, or a very long stretch
    bool m_over = false;        ///< nothing more is read
    bool m_failed = false;
    Error m_error;
};

} // namespace lodestar

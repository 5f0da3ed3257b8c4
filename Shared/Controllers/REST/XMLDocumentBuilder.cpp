// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/XMLDocumentBuilder.h"

#include <libxml/parserInternals.h>

#include <limits>
#include <mutex>
#include <new>

namespace lodestar
{
namespace
{

constexpr std::size_t arenaLimit = std::numeric_limits<std::uint32_t>::max() - 1;
// Salvage what can be salvaged, print nothing, open nothing. Entities are never replaced, no DTD is ever loaded, and
// the parser's own limits on depth and size stay on.
constexpr int parseOptions = XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

Error outOfMemory()
{
    return {"XML", XML_ERR_NO_MEMORY, "There is not enough memory to read the answer.", {}, nullptr};
}

Error tooLarge()
{
    return {"XML", XML_ERR_INTERNAL_ERROR, "The answer is too large to be read.", {}, nullptr};
}

const char* chars(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

struct ParserDeleter {
    void operator()(xmlParserCtxtPtr parser) const
    {
        xmlFreeDoc(parser->myDoc);
        parser->myDoc = nullptr;
        xmlFreeParserCtxt(parser);
    }
};

} // namespace

XMLDocumentBuilder::XMLDocumentBuilder(std::size_t inputSize)
{
    m_document->m_text.reserve(inputSize / 3);
    m_document->m_nodes.reserve(inputSize / 64);
}

Result<std::shared_ptr<const XMLDocument>> XMLDocumentBuilder::run(std::string_view bytes)
{
    static std::once_flag initialised;
    std::call_once(initialised, &xmlInitParser);
    if (bytes.empty()) {
        return std::shared_ptr<const XMLDocument>();
    }
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return tooLarge();
    }
    const std::unique_ptr<xmlParserCtxt, ParserDeleter> parser(
        xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size())));
    if (parser == nullptr) {
        return outOfMemory();
    }
    m_parser = parser.get();
    parser->_private = this;
    xmlCtxtUseOptions(parser.get(), parseOptions);
    // Declarations go the library's own way, so that entities and defaulted attributes mean what they mean to its
    // tree; what would become the tree's nodes comes here.
    xmlSAXHandler& events = *parser->sax;
    events.startElementNs = &startElement;
    events.endElementNs = &endElement;
    events.characters = &characters;
    events.ignorableWhitespace = &characters;
    events.cdataBlock = &characters;
    events.reference = nullptr;
    events.comment = nullptr;
    events.processingInstruction = nullptr;
    events.serror = &noteError;
    xmlParseDocument(parser.get());
    if (parser->errNo == XML_ERR_NO_MEMORY) {
        fail(outOfMemory());
    }
    if (m_failed) {
        return m_error;
    }
    if (m_document->m_nodes.empty()) {
        return std::shared_ptr<const XMLDocument>();
    }
    try {
        finish();
    } catch (const std::bad_alloc&) {
        return outOfMemory();
    }
    return std::shared_ptr<const XMLDocument>(std::move(m_document));
}

/// Null for events that come from inside an entity's text: the parser checks that text when the entity is first named,
/// with a context of its own, and references read as nothing.
XMLDocumentBuilder* XMLDocumentBuilder::of(void* context)
{
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    auto* const builder = static_cast<XMLDocumentBuilder*>(parser->_private);
    return parser == builder->m_parser && !builder->m_failed ? builder : nullptr;
}

void XMLDocumentBuilder::startElement(void* context, const xmlChar* localName, const xmlChar* prefix,
                                      const xmlChar* /*uri*/, int /*namespaceCount*/, const xmlChar** /*namespaces*/,
                                      int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    XMLDocumentBuilder* const self = of(context);
    if (self == nullptr) {
        return;
    }
    try {
        self->closeAbandoned();
        // Values that only a declaration gives stand last, and are not read.
        self->open(self->localPart(localName, prefix), attributes, attributeCount - defaultedCount);
    } catch (const std::bad_alloc&) {
        self->fail(outOfMemory());
    }
}

void XMLDocumentBuilder::endElement(void* context, const xmlChar* /*localName*/, const xmlChar* /*prefix*/,
                                    const xmlChar* /*uri*/)
{
    if (XMLDocumentBuilder* const self = of(context)) {
        self->close();
    }
}

void XMLDocumentBuilder::characters(void* context, const xmlChar* bytes, int length)
{
    XMLDocumentBuilder* const self = of(context);
    if (self == nullptr) {
        return;
    }
    self->closeAbandoned();
    if (self->m_open.empty()) {
        return;
    }
    try {
        self->append({chars(bytes), static_cast<std::size_t>(length)});
    } catch (const std::bad_alloc&) {
        self->fail(outOfMemory());
    }
}

/// A shorter document must never pass for a whole one: later errors may overwrite the one that counts.
void XMLDocumentBuilder::noteError(void* context, xmlErrorPtr error)
{
    if (context == nullptr || error == nullptr || error->code != XML_ERR_NO_MEMORY) {
        return;
    }
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    static_cast<XMLDocumentBuilder*>(parser->_private)->fail(outOfMemory());
}

/// A name that is no proper qualified name comes whole; what stands before its colon is a prefix all the same.
const xmlChar* XMLDocumentBuilder::localPart(const xmlChar* name, const xmlChar* prefix) const
{
    const std::string_view whole = chars(name);
    const std::size_t colon = whole.find(':');
    if (prefix != nullptr || colon == 0 || colon == std::string_view::npos || colon + 1 == whole.size()) {
        return name;
    }
    const xmlChar* const part = xmlDictLookup(m_parser->dict, name + colon + 1, -1);
    return part != nullptr ? part : name;
}

void XMLDocumentBuilder::open(const xmlChar* localName, const xmlChar** attributes, int attributeCount)
{
    XMLDocument& document = *m_document;
    if (document.m_nodes.size() >= arenaLimit || document.m_attributes.size() >= arenaLimit) {
        fail(tooLarge());
        return;
    }
    const auto index = static_cast<XMLDocument::Index>(document.m_nodes.size());
    const auto text = static_cast<std::uint32_t>(document.m_text.size());
    document.m_nodes.push_back(
        {intern(localName), index + 1, text, text, static_cast<XMLDocument::Index>(document.m_attributes.size())});
    m_open.push_back(index);
    for (int i = 0; i < attributeCount; ++i) {
        // Five pointers an attribute: name, prefix, address of the name space, begin and end of the value.
        const xmlChar** const one = attributes + std::ptrdiff_t{5} * i;
        addAttribute(localPart(one[0], one[1]), {chars(one[3]), static_cast<std::size_t>(one[4] - one[3])});
    }
}

/// The parser leaves references in a value as they stand, "&" itself among them as "&#38;".
void XMLDocumentBuilder::addAttribute(const xmlChar* localName, std::string_view raw)
{
    XMLDocument& document = *m_document;
    if (document.m_values.size() + raw.size() >= arenaLimit) {
        fail(tooLarge());
        return;
    }
    const std::size_t begin = document.m_values.size();
    while (!raw.empty()) {
        const std::size_t reference = raw.find('&');
        document.m_values.append(raw.substr(0, reference));
        if (reference == std::string_view::npos) {
            break;
        }
        const std::size_t end = raw.find(';', reference);
        const std::string_view name = raw.substr(reference, end == std::string_view::npos ? end : end - reference + 1);
        if (name == "&#38;") {
            document.m_values += '&';
        }
        raw.remove_prefix(reference + name.size());
    }
    document.m_attributes.push_back({intern(localName), static_cast<std::uint32_t>(begin),
                                     static_cast<std::uint32_t>(document.m_values.size() - begin)});
}

void XMLDocumentBuilder::close()
{
    if (m_open.empty()) {
        return;
    }
    XMLDocument::Node& node = m_document->m_nodes[m_open.back()];
    m_open.pop_back();
    node.end = static_cast<XMLDocument::Index>(m_document->m_nodes.size());
    node.textEnd = static_cast<std::uint32_t>(m_document->m_text.size());
}

/// An element whose start tag breaks off is given up by the parser without an event: what follows belongs to its
/// parent.
void XMLDocumentBuilder::closeAbandoned()
{
    while (m_open.size() > static_cast<std::size_t>(m_parser->nameNr)) {
        close();
    }
}

void XMLDocumentBuilder::append(std::string_view text)
{
    if (m_document->m_text.size() + text.size() >= arenaLimit) {
        fail(tooLarge());
        return;
    }
    m_document->m_text.append(text);
}

XMLDocument::Name XMLDocumentBuilder::intern(const xmlChar* name)
{
    const auto [known, isNew] = m_byAddress.try_emplace(name, static_cast<XMLDocument::Name>(m_byAddress.size()));
    if (isNew) {
        m_document->m_names.emplace_back(chars(name));
    }
    return known->second;
}

void XMLDocumentBuilder::fail(Error error)
{
    if (!m_failed) {
        m_failed = true;
        m_error = std::move(error);
        xmlStopParser(m_parser);
    }
}

/// Closes what a cut document left open, and gives back what was reserved too much.
void XMLDocumentBuilder::finish()
{
    while (!m_open.empty()) {
        close();
    }
    XMLDocument& document = *m_document;
    document.m_nodes.shrink_to_fit();
    document.m_attributes.shrink_to_fit();
    document.m_text.shrink_to_fit();
    document.m_values.shrink_to_fit();
    document.m_nameIds.reserve(document.m_names.size());
    for (std::size_t i = 0; i < document.m_names.size(); ++i) {
        document.m_nameIds.try_emplace(document.m_names[i], static_cast<XMLDocument::Name>(i));
    }
}

} // namespace lodestar

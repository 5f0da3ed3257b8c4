// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLDocumentBuilder.h"

#include "Platform/URLLoading/URLError.h"
#include "XML/XMLInput.h"

#include <libxml/parserInternals.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <new>

namespace lodestar
{
namespace
{

// What an error or a comparison costs the library is a hundred times or a tenth of what a byte of a feed does. These
// let the worst input take about as long again as a plain feed of its size.
constexpr std::size_t errorsAlways = 2500;
constexpr std::size_t bytesAnError = 64;
constexpr std::size_t comparisonsAlways = 1'000'000;
constexpr std::size_t comparisonsAByte = 8;
// An element of a few bytes costs the library five times what as many bytes of a feed do. A feed has 20 bytes for each
// part, one with attributes at every short element 10.
constexpr std::size_t partsAlways = 100'000;
constexpr std::size_t bytesAPart = 6;
constexpr std::size_t partsOfAnElement = 2;
constexpr std::size_t partsOfANameSpace = 4;

// Elements and attributes between two looks at the memory that is left: less than half a megabyte of them.
constexpr std::size_t piecesUnseen = 32768;
constexpr std::size_t arenaLimit = std::numeric_limits<std::uint32_t>::max() - 1;
// Salvage what can be salvaged, print nothing, open nothing. Entities are never replaced, no DTD is ever loaded, and
// the parser's own limits on depth and size stay on.
constexpr int parseOptions = XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

Error tooLarge()
{
    return {"XML", XML_ERR_INTERNAL_ERROR, "The answer is too large to be read.", {}, nullptr};
}

Error noRoom()
{
    return urlError(URLErrorCode::DataLengthExceedsMaximum, "what is kept already leaves no room for it");
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

Error XMLDocumentBuilder::outOfMemory()
{
    // Short enough to need none.
    return {"XML", XML_ERR_NO_MEMORY, "Out of memory.", {}, nullptr};
}

Result<std::shared_ptr<const XMLDocument>> XMLDocumentBuilder::run(std::string_view bytes)
{
    if (bytes.empty()) {
        return std::shared_ptr<const XMLDocument>();
    }
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return tooLarge();
    }
    // About what a feed takes.
    if (!m_document->m_kept.resize(bytes.size())) {
        return noRoom();
    }
    const std::unique_ptr<xmlParserCtxt, ParserDeleter> parser(makeXMLParser(bytes));
    if (parser == nullptr) {
        return outOfMemory();
    }
    m_parser = parser.get();
    m_memory.limit(*parser);
    m_errorsLeft = errorsAlways + bytes.size() / bytesAnError;
    m_comparisonsLeft = comparisonsAlways + bytes.size() * comparisonsAByte;
    m_partsLeft = partsAlways + bytes.size() / bytesAPart;
    parser->_private = this;
    xmlCtxtUseOptions(parser.get(), parseOptions);
    setEvents(*parser->sax);
    reserve(bytes.size());
    xmlParseDocument(parser.get());
    if (m_memory.wasBeyondLimits()) {
        return tooLarge();
    }
    // A shorter document must never pass for a whole one.
    if (m_memory.ranOut() || parser->errNo == XML_ERR_NO_MEMORY) {
        return outOfMemory();
    }
    if (m_failed) {
        return m_error;
    }
    if (m_document->m_nodes.empty()) {
        return std::shared_ptr<const XMLDocument>();
    }
    finish();
    if (!m_document->m_kept.resize(m_document->memory())) {
        return noRoom();
    }
    return std::shared_ptr<const XMLDocument>(std::move(m_document));
}

void XMLDocumentBuilder::setEvents(xmlSAXHandler& events) const
{
    setDeclarationEvents(events);
    events.startElementNs = &startElement;
    events.endElementNs = &endElement;
    events.characters = &characters;
    // One function for both spares the parser a look at what is blank.
    events.ignorableWhitespace = &characters;
    events.cdataBlock = &characters;
    events.reference = nullptr;
    events.comment = nullptr;
    events.processingInstruction = nullptr;
    events.serror = &noteError;
}

/// Room for most feeds. Beyond it the arrays grow.
void XMLDocumentBuilder::reserve(std::size_t inputSize)
{
    m_document->m_nodes.reserve(inputSize / 32);
    m_document->m_text.reserve(inputSize / 2);
}

void XMLDocumentBuilder::startElement(void* context, const xmlChar* localName, const xmlChar* prefix,
                                      const xmlChar* /*uri*/, int namespaceCount, const xmlChar** /*namespaces*/,
                                      int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    XMLDocumentBuilder* const self = of(context);
    if (self == nullptr) {
        return;
    }
    self->countWork(static_cast<std::size_t>(attributeCount), static_cast<std::size_t>(namespaceCount));
    try {
        self->closeAbandoned();
        // Values that only a declaration gives stand last, and are not read.
        self->open(localName, prefix, attributes, attributeCount - defaultedCount);
    } catch (const std::bad_alloc&) {
        self->fail(outOfMemory());
    }
}

void XMLDocumentBuilder::endElement(void* context, const xmlChar* /*localName*/, const xmlChar* /*prefix*/,
                                    const xmlChar* /*uri*/)
{
    XMLDocumentBuilder* const self = of(context);
    if (self == nullptr) {
        return;
    }
    try {
        self->close();
    } catch (const std::bad_alloc&) {
        self->fail(outOfMemory());
    }
}

void XMLDocumentBuilder::characters(void* context, const xmlChar* bytes, int length)
{
    XMLDocumentBuilder* const self = of(context);
    if (self == nullptr) {
        return;
    }
    XMLArray<char>& text = self->m_document->m_text;
    const auto count = static_cast<std::size_t>(length);
    if (text.size() + count >= arenaLimit) {
        self->fail(tooLarge());
        return;
    }
    try {
        self->closeAbandoned();
        if (!self->m_open.empty()) {
            text.append(chars(bytes), count);
        }
    } catch (const std::bad_alloc&) {
        self->fail(outOfMemory());
    }
}

/// The parser also says that it is out of memory when one of its own limits is reached. Later errors may overwrite the
/// one that counts.
void XMLDocumentBuilder::noteError(void* context, xmlErrorPtr error)
{
    if (context == nullptr || error == nullptr) {
        return;
    }
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    auto* const self = static_cast<XMLDocumentBuilder*>(parser->_private);
    if (error->code == XML_ERR_NO_MEMORY) {
        self->fail(outOfMemory());
    } else if (self->m_errorsLeft > 0) {
        --self->m_errorsLeft;
    } else {
        self->end(*parser);
        self->end(*self->m_parser);
    }
}

/// As the library itself ends a parse where memory is refused: an error may be told in the middle of anything, where
/// `xmlStopParser` would take away what is being read. After some constructs the library goes on all the same, as far
/// as the next event.
void XMLDocumentBuilder::end(xmlParserCtxt& parser)
{
    m_over = true;
    parser.instate = XML_PARSER_EOF;
    parser.disableSAX = 1;
}

/// The parser compares the attributes of a tag with each other, the name spaces too, and looks for the name space of
/// each among all in force.
void XMLDocumentBuilder::countWork(std::size_t attributeCount, std::size_t namespaceCount)
{
    const auto inForce = static_cast<std::size_t>(m_parser->nsNr) / 2;
    const std::size_t made =
        (attributeCount * attributeCount + namespaceCount * namespaceCount) / 2 + (attributeCount + 1) * inForce;
    const std::size_t parts = partsOfAnElement + attributeCount + namespaceCount * partsOfANameSpace;
    if (made > m_comparisonsLeft || parts > m_partsLeft) {
        fail(tooLarge());
        return;
    }
    m_comparisonsLeft -= made;
    m_partsLeft -= parts;
}

void XMLDocumentBuilder::open(const xmlChar* localName, const xmlChar* prefix, const xmlChar** attributes,
                              int attributeCount)
{
    XMLDocument& document = *m_document;
    if (document.m_nodes.size() >= arenaLimit || document.m_attributes.size() >= arenaLimit) {
        fail(tooLarge());
        return;
    }
    if (document.m_nodes.size() + document.m_attributes.size() >= m_nextLook && !keep()) {
        return;
    }
    const auto index = static_cast<XMLDocument::Index>(document.m_nodes.size());
    const auto text = static_cast<std::uint32_t>(document.m_text.size());
    if (index % XMLDocument::blockSize == 0) {
        document.m_blocks.push_back({text, static_cast<std::uint32_t>(document.m_lists.size())});
    }
    document.m_nodes.push_back({nameOf(localName, prefix), 0, 0, 0, 0});
    m_open.push_back({index, text});
    if (attributeCount == 0) {
        return;
    }
    const std::size_t begin = document.m_attributes.size();
    for (int i = 0; i < attributeCount; ++i) {
        // Five pointers an attribute: name, prefix, address of the name space, begin and end of the value.
        const xmlChar** const one = attributes + std::ptrdiff_t{5} * i;
        addAttribute(one[0], one[1], {chars(one[3]), static_cast<std::size_t>(one[4] - one[3])});
    }
    document.m_nodes.back().list = m_over ? 0 : listFrom(begin);
}

bool XMLDocumentBuilder::keep()
{
    const XMLDocument& document = *m_document;
    const std::size_t used =
        document.m_nodes.size() * sizeof(XMLDocument::Node) + document.m_blocks.size() * sizeof(XMLDocument::Block) +
        document.m_large.size() * sizeof(XMLDocument::Large) + document.m_lists.size() * sizeof(std::uint32_t) +
        document.m_attributes.size() * sizeof(XMLDocument::Attribute) + document.m_text.size() +
        document.m_values.size();
    if (used > document.m_kept.size() && !m_document->m_kept.resize(used)) {
        fail(noRoom());
        return false;
    }
    m_nextLook = document.m_nodes.size() + document.m_attributes.size() + piecesUnseen;
    return true;
}

/// The parser leaves references in a value as they stand, "&" itself among them as "&#38;".
void XMLDocumentBuilder::addAttribute(const xmlChar* localName, const xmlChar* prefix, std::string_view raw)
{
    XMLArray<char>& values = m_document->m_values;
    const std::size_t begin = values.size();
    if (begin + raw.size() >= arenaLimit) {
        fail(tooLarge());
        return;
    }
    std::size_t reference = raw.find('&');
    while (reference != std::string_view::npos) {
        const std::size_t end = raw.find(';', reference);
        const std::size_t next = end == std::string_view::npos ? raw.size() : end + 1;
        const bool ampersand = raw.substr(reference, next - reference) == "&#38;";
        values.append(raw.data(), reference + (ampersand ? 1 : 0));
        raw.remove_prefix(next);
        reference = raw.find('&');
    }
    values.append(raw.data(), raw.size());
    m_document->m_attributes.push_back({nameOf(localName, prefix), static_cast<std::uint32_t>(begin)});
}

std::uint16_t XMLDocumentBuilder::listFrom(std::size_t begin)
{
    XMLDocument& document = *m_document;
    const XMLDocument::Attribute first = document.m_attributes[begin];
    const std::string_view values(document.m_values.data() + first.value, document.m_values.size() - first.value);
    std::uint16_t& known = m_knownLists[(std::hash<std::string_view>()(values) + first.name) % m_knownLists.size()];
    const std::size_t number = document.m_lists.size();
    document.m_lists.push_back(static_cast<std::uint32_t>(begin));
    if (known != 0 && isSame(document.list(known - 1U), document.list(number))) {
        document.m_lists.pop_back();
        document.m_attributes.cut(begin);
        document.m_values.cut(first.value);
        return known;
    }
    if (number + 1 < XMLDocument::blocksLists) {
        known = static_cast<std::uint16_t>(number + 1);
        return known;
    }
    return static_cast<std::uint16_t>(XMLDocument::blocksLists + number - document.m_blocks.back().list);
}

bool XMLDocumentBuilder::isSame(std::span<const XMLDocument::Attribute> a,
                                std::span<const XMLDocument::Attribute> b) const
{
    const auto isSameAttribute = [this](const XMLDocument::Attribute& one, const XMLDocument::Attribute& other) {
        return one.name == other.name && m_document->value(one) == m_document->value(other);
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameAttribute);
}

void XMLDocumentBuilder::close()
{
    if (m_open.empty()) {
        return;
    }
    XMLDocument& document = *m_document;
    const OpenElement closed = m_open.back();
    XMLDocument::Node& node = document.m_nodes[closed.index];
    const auto end = static_cast<XMLDocument::Index>(document.m_nodes.size());
    const auto textEnd = static_cast<std::uint32_t>(document.m_text.size());
    const std::uint32_t descendants = end - closed.index - 1;
    const std::uint32_t text = closed.text - document.m_blocks[closed.index / XMLDocument::blockSize].text;
    const std::uint32_t textLength = textEnd - closed.text;
    if (std::max({descendants, text, textLength}) < XMLDocument::isLarge) {
        node.descendants = static_cast<std::uint16_t>(descendants);
        node.text = static_cast<std::uint16_t>(text);
        node.textLength = static_cast<std::uint16_t>(textLength);
    } else {
        node.descendants = XMLDocument::isLarge;
        document.m_large.push_back({closed.index, end, closed.text, textEnd});
    }
    m_open.pop_back();
}

/// A name that is no proper qualified name comes whole; what stands before its colon is a prefix all the same.
XMLDocument::Name XMLDocumentBuilder::internLocalPart(const xmlChar* name, const xmlChar* prefix)
{
    std::string_view text = chars(name);
    const std::size_t colon = prefix != nullptr ? 0 : text.find(':');
    if (colon != 0 && colon != std::string_view::npos && colon + 1 != text.size()) {
        text.remove_prefix(colon + 1);
    }
    const XMLDocument::Name number = m_document->m_names.intern(text);
    if (number == XMLDocument::noName) {
        refuse();
    }
    return number;
}

void XMLDocumentBuilder::refuse()
{
    fail(tooLarge());
}

void XMLDocumentBuilder::fail(Error error)
{
    if (!m_failed) {
        m_failed = true;
        m_over = true;
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
    // Elements are closed from the inside out.
    std::sort(document.m_large.data(), document.m_large.data() + document.m_large.size(),
              [](const XMLDocument::Large& a, const XMLDocument::Large& b) { return a.node < b.node; });
    document.m_nodes.shrinkToFit();
    document.m_blocks.shrinkToFit();
    document.m_large.shrinkToFit();
    document.m_lists.shrinkToFit();
    document.m_attributes.shrinkToFit();
    document.m_text.shrinkToFit();
    document.m_values.shrinkToFit();
    document.m_names.shrinkToFit();
}

} // namespace lodestar

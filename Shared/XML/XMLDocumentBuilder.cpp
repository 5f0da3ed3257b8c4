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

// One error costs the library a hundred times as much as one byte of a feed, one comparison a tenth. With these limits
// the worst input takes at most about twice the time of a plain feed of its size.
constexpr std::size_t errorsAlways = 2500;
constexpr std::size_t bytesAnError = 64;
constexpr std::size_t comparisonsAlways = 1'000'000;
constexpr std::size_t comparisonsAByte = 3;
// A short element costs the library five times as much as the same number of feed bytes. Feeds have 20 bytes for each
// part; a feed with attributes at every short element has 10.
constexpr std::size_t partsAlways = 100'000;
constexpr std::size_t bytesAPart = 7;
constexpr std::size_t partsOfAnElement = 2;
constexpr std::size_t partsOfANameSpace = 4;
constexpr std::size_t partsOfAReference = 2;

// The number of elements and attributes between two checks of the memory that is left. They take less than half a
// megabyte.
constexpr std::size_t piecesUnseen = 32768;
constexpr std::size_t arenaLimit = std::numeric_limits<std::uint32_t>::max() - 1;
// The parser salvages what it can, prints nothing and opens nothing. It never replaces entities and never loads a DTD;
// its own limits on depth and size stay on.
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

Result<std::shared_ptr<const XMLDocument>> XMLDocumentBuilder::parse(const char* bytes, std::size_t size)
{
    // Also what is made before the first event, and after the last, may find no memory.
    try {
        return XMLDocumentBuilder().run({bytes, size});
    } catch (const std::bad_alloc&) {
        return outOfMemory();
    }
}

Error XMLDocumentBuilder::outOfMemory()
{
    // This text is short enough to need no allocation.
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
    // A parsed feed takes about as many bytes as its text.
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
    parser->_private = static_cast<XMLDeclarationState*>(this);
    xmlCtxtUseOptions(parser.get(), parseOptions);
    setEvents(*parser->sax);
    reserve(bytes.size());
    xmlParseDocument(parser.get());
    if (refused || m_memory.wasBeyondLimits()) {
        return tooLarge();
    }
    // A document cut short by a lack of memory must never pass for a whole one.
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
    // With one function for both, the parser need not look for blank text.
    events.ignorableWhitespace = &characters;
    events.cdataBlock = &characters;
    events.reference = &countReference;
    events.comment = nullptr;
    events.processingInstruction = nullptr;
    events.serror = &noteError;
}

/// Reserves room that is enough for most feeds. For larger ones the arrays grow.
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
    self->m_isInText = false;
    self->countWork(static_cast<std::size_t>(attributeCount), static_cast<std::size_t>(namespaceCount));
    try {
        self->closeAbandoned();
        // Values that only a declaration gives come last and are left out.
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
    self->m_isInText = false;
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
    if (self->m_isInText) {
        self->countParts(partsOfAReference);
    }
    self->m_isInText = true;
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

/// The parser also reports that it is out of memory when it reaches one of its own limits. That error is kept here
/// because later ones may overwrite it.
void XMLDocumentBuilder::noteError(void* context, xmlErrorPtr error)
{
    if (context == nullptr || error == nullptr) {
        return;
    }
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    XMLDocumentBuilder* const self = builderOf(*parser);
    if (error->code == XML_ERR_NO_MEMORY) {
        self->fail(outOfMemory());
    } else if (self->m_errorsLeft > 0) {
        --self->m_errorsLeft;
    } else {
        self->end(*parser);
        self->end(*self->m_parser);
    }
}

/// Ends the parse in the way in which the library itself does when memory is refused: an error may be reported in the
/// middle of any construct, where `xmlStopParser` would free what is being read. After some constructs the library
/// still goes on as far as the next event.
void XMLDocumentBuilder::end(xmlParserCtxt& parser)
{
    m_over = true;
    parser.instate = XML_PARSER_EOF;
    parser.disableSAX = 1;
}

/// Counts the comparisons that the parser makes: each attribute of a tag with each other, the name spaces likewise, and
/// each attribute's name space with all that are in force.
void XMLDocumentBuilder::countWork(std::size_t attributeCount, std::size_t namespaceCount)
{
    const auto inForce = static_cast<std::size_t>(m_parser->nsNr) / 2;
    const std::size_t made =
        (attributeCount * attributeCount + namespaceCount * namespaceCount) / 2 + (attributeCount + 1) * inForce;
    const std::size_t parts = partsOfAnElement + attributeCount + namespaceCount * partsOfANameSpace;
    if (made > m_comparisonsLeft) {
        fail(tooLarge());
        return;
    }
    m_comparisonsLeft -= made;
    countParts(parts);
}

void XMLDocumentBuilder::countParts(std::size_t parts)
{
    if (parts > m_partsLeft) {
        fail(tooLarge());
        return;
    }
    m_partsLeft -= parts;
}

/// References to declared entities are left out of the text, and counted: the parser looks each of them up.
void XMLDocumentBuilder::countReference(void* context, const xmlChar* /*name*/)
{
    if (XMLDocumentBuilder* const self = of(context); self != nullptr) {
        self->countParts(partsOfAReference);
    }
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
        // The parser passes five pointers for each attribute: name, prefix, address of the name space, begin and end of
        // the value.
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

/// Copies the value without its references: the parser leaves them in the value unchanged. "&" itself comes as "&#38;"
/// and is kept.
void XMLDocumentBuilder::addAttribute(const xmlChar* localName, const xmlChar* prefix, std::string_view raw)
{
    XMLArray<char>& values = m_document->m_values;
    const std::size_t begin = values.size();
    if (begin + raw.size() >= arenaLimit) {
        fail(tooLarge());
        return;
    }
    if (!isAsWritten(raw)) {
        const auto isUsuallyReference = [](char c) {
            return std::string_view("<>&'\"").find(c) != std::string_view::npos;
        };
        const auto references = std::count_if(raw.begin(), raw.end(), isUsuallyReference);
        countParts(static_cast<std::size_t>(references) * partsOfAReference);
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

/// The parser passes a value without references where it stands in the input, any other as a copy.
bool XMLDocumentBuilder::isAsWritten(std::string_view value) const
{
    const std::less_equal<const char*> isAtOrBefore;
    return isAtOrBefore(chars(m_parser->input->base), value.data()) &&
           isAtOrBefore(value.data(), chars(m_parser->input->end));
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

/// The parser passes a name that is no valid qualified name as a whole. The part before its colon still counts as a
/// prefix.
XMLDocument::Name XMLDocumentBuilder::internLocalPart(const xmlChar* name, const xmlChar* prefix)
{
    std::string_view text = chars(name);
    const std::size_t colon = prefix != nullptr ? 0 : text.find(':');
    if (colon != 0 && colon != std::string_view::npos && colon + 1 != text.size()) {
        text.remove_prefix(colon + 1);
    }
    const XMLDocument::Name number = m_document->m_names.intern(text);
    if (number == XMLDocument::noName) {
        fail(tooLarge());
    }
    return number;
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

/// Closes the elements that a cut document left open, and frees reserved room that is unused.
void XMLDocumentBuilder::finish()
{
    while (!m_open.empty()) {
        close();
    }
    XMLDocument& document = *m_document;
    // Inner elements are closed before outer ones, so the list must be sorted.
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

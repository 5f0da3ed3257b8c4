// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/XMLDocument.h"

#include <libxml/parser.h>

namespace lodestar
{

/// Fills a document from libxml2's events. One parse, one thread; the static functions are the parser's callbacks.
class XMLDocumentBuilder
{
public:
    explicit XMLDocumentBuilder(std::size_t inputSize);

    /// Runs the parse. Null without a root; an error when memory or the arena's indexes ran out.
    Result<std::shared_ptr<const XMLDocument>> run(std::string_view bytes);

private:
    static XMLDocumentBuilder* of(void* context);
    static void startElement(void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                             int namespaceCount, const xmlChar** namespaces, int attributeCount, int defaultedCount,
                             const xmlChar** attributes);
    static void endElement(void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri);
    static void characters(void* context, const xmlChar* bytes, int length);
    static void noteError(void* context, xmlErrorPtr error);

    const xmlChar* localPart(const xmlChar* name, const xmlChar* prefix) const;
    void open(const xmlChar* localName, const xmlChar** attributes, int attributeCount);
    void addAttribute(const xmlChar* localName, std::string_view raw);
    void close();
    void closeAbandoned();
    void append(std::string_view text);
    XMLDocument::Name intern(const xmlChar* name);
    void fail(Error error);
    void finish();

    std::shared_ptr<XMLDocument> m_document = std::make_shared<XMLDocument>();
    std::vector<XMLDocument::Index> m_open;
    std::unordered_map<const xmlChar*, XMLDocument::Name> m_byAddress; ///< the parser keeps one copy of each name
    xmlParserCtxtPtr m_parser = nullptr;
    bool m_failed = false;
    Error m_error;
};

} // namespace lodestar

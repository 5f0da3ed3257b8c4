// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLDeclarations.h"

#include "XML/XMLInput.h"

#include <libxml/SAX2.h>
#include <libxml/entities.h>
#include <libxml/hash.h>
#include <libxml/parserInternals.h>

#include <algorithm>

namespace lodestar
{
namespace
{

/// The limit on what parameter entities expand to. Consoles declare nothing, so the limit can be small.
constexpr std::size_t mostExpandedBytes = 1U << 20U;
constexpr std::size_t costOfExpansion = 100;

XMLDeclarationState& stateOf(const xmlParserCtxt& parser)
{
    return *static_cast<XMLDeclarationState*>(parser._private);
}

/// Whether the entity's text would keep the parser busy for long. The parser is about to check the text, with a context
/// of its own.
bool isMonstrous(const xmlEntity& entity)
{
    return entity.etype == XML_INTERNAL_GENERAL_ENTITY && entity.checked == 0 && entity.content != nullptr &&
           hasMonstrousTag({reinterpret_cast<const char*>(entity.content), static_cast<std::size_t>(entity.length)});
}

/// The content of checked entities that have none: without any content the parser would read the entity again at every
/// reference. The entity does not own this node, so the parser neither frees it nor looks into it.
xmlNode* anyContent()
{
    static xmlNode content{};
    return &content;
}

xmlEntityPtr entityNamed(void* context, const xmlChar* name)
{
    const xmlEntityPtr entity = xmlSAX2GetEntity(context, name);
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    bool& refused = stateOf(*parser).refused;
    refused = refused || (entity != nullptr && isMonstrous(*entity));
    if (refused) {
        xmlStopParser(parser);
        return nullptr;
    }
    if (entity != nullptr && entity->etype == XML_INTERNAL_GENERAL_ENTITY && entity->checked != 0 &&
        entity->children == nullptr) {
        entity->children = anyContent();
        entity->owner = 0;
    }
    return entity;
}

xmlEntityPtr parameterEntityNamed(void* context, const xmlChar* name)
{
    const xmlEntityPtr entity = xmlSAX2GetParameterEntity(context, name);
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    if (entity != nullptr) {
        std::size_t& bytes = stateOf(*parser).expandedBytes;
        bytes += costOfExpansion + static_cast<std::size_t>(std::max(entity->length, 0));
        if (bytes > mostExpandedBytes) {
            xmlStopParser(parser);
            return nullptr;
        }
    }
    return entity;
}

/// Called when all declarations have been read. Drops the declared default attributes: at each start tag the parser
/// would go through them and compare them with every other attribute.
void declarationsEnd(void* context, const xmlChar* /*name*/, const xmlChar* /*publicId*/, const xmlChar* /*systemId*/)
{
    auto* const parser = static_cast<xmlParserCtxtPtr>(context);
    if (parser->attsDefault != nullptr) {
        xmlHashFree(parser->attsDefault, &xmlHashDefaultDeallocator);
        parser->attsDefault = nullptr;
    }
}

} // namespace

void setDeclarationEvents(xmlSAXHandler& events)
{
    events.getEntity = &entityNamed;
    events.getParameterEntity = &parameterEntityNamed;
    events.externalSubset = &declarationsEnd;
    events.resolveEntity = nullptr;
    events.attributeDecl = nullptr;
    events.elementDecl = nullptr;
    events.notationDecl = nullptr;
}

} // namespace lodestar

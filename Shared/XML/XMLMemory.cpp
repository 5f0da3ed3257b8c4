// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLMemory.h"

#include <libxml/dict.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlmemory.h>

#include <cstdlib>
#include <cstring>
#include <mutex>

namespace lodestar
{
namespace
{

thread_local bool refused = false;
thread_local bool beyondLimits = false;
thread_local int declarationPieces = 0;
thread_local const xmlParserCtxt* limited = nullptr;

/// Tells by the block's size: the parser keeps five pointers for each attribute of the current tag, and two for each
/// name space in force.
bool isRoomForMonstrousTag(const void* block, std::size_t size)
{
    if (limited == nullptr || block == nullptr) {
        return false;
    }
    constexpr std::size_t one = sizeof(void*);
    return (block == static_cast<const void*>(limited->atts) && size > one * 5 * mostAttributes) ||
           (block == static_cast<const void*>(limited->nsTab) && size > one * 2 * mostAttributes);
}

bool isRoomForTooManyNames()
{
    return limited != nullptr && (xmlDictSize(limited->dict) > mostNames ||
                                  (limited->instate == XML_PARSER_DTD && ++declarationPieces > mostDeclarationPieces));
}

void* noted(void* block)
{
    refused |= block == nullptr;
    return block;
}

void* allocate(std::size_t size)
{
    if (isRoomForTooManyNames()) {
        beyondLimits = true;
        return nullptr;
    }
    return noted(std::malloc(size));
}

void* reallocate(void* block, std::size_t size)
{
    if (isRoomForMonstrousTag(block, size)) {
        beyondLimits = true;
        return nullptr;
    }
    // A size of 0 rightly gives null, which is no lack of memory.
    return size != 0 ? noted(std::realloc(block, size)) : std::realloc(block, size);
}

char* duplicate(const char* text)
{
    const std::size_t size = std::strlen(text) + 1;
    void* const copy = allocate(size);
    return static_cast<char*>(copy != nullptr ? std::memcpy(copy, text, size) : nullptr);
}

} // namespace

XMLMemoryWatch::XMLMemoryWatch()
{
    static std::once_flag installed;
    std::call_once(installed, [] {
        xmlMemSetup(&std::free, &allocate, &reallocate, &duplicate);
        xmlInitParser();
    });
    // Without this handler the library would print errors that occur outside of any parser.
    xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    refused = false;
    beyondLimits = false;
    declarationPieces = 0;
}

XMLMemoryWatch::~XMLMemoryWatch()
{
    limited = nullptr;
    xmlSetStructuredErrorFunc(nullptr, nullptr);
}

void XMLMemoryWatch::limit(const xmlParserCtxt& parser)
{
    limited = &parser;
}

bool XMLMemoryWatch::wasBeyondLimits() const
{
    return beyondLimits;
}

bool XMLMemoryWatch::ranOut() const
{
    return refused;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/XMLMemory.h"

#include <libxml/parser.h>
#include <libxml/xmlmemory.h>

#include <cstdlib>
#include <cstring>
#include <mutex>

namespace lodestar
{
namespace
{

thread_local bool refused = false;

void* noted(void* block)
{
    refused |= block == nullptr;
    return block;
}

void* allocate(std::size_t size)
{
    return noted(std::malloc(size));
}

void* reallocate(void* block, std::size_t size)
{
    // Nothing is what a size of nothing gives, and rightly.
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
    refused = false;
}

bool XMLMemoryWatch::ranOut() const
{
    return refused;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
// Every single allocation of a parse refused, the library's and our own. A program of its own, since it stands in for
// the process's allocator.
#include "Controllers/REST/XMLElement.h"
#include "Tests/REST/TreeReference.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <cstddef>
#include <ctime>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace
{

/// Allocations of this thread until the one that is refused; negative for none.
thread_local int untilRefusal = -1;
thread_local bool refusing = false;
thread_local bool refused = false;

bool refuse()
{
    if (!refusing || untilRefusal-- != 0) {
        return false;
    }
    refused = true;
    return true;
}

} // namespace

extern "C" {
void* malloc(std::size_t size) noexcept
{
    return refuse() ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept
{
    return refuse() ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept
{
    return refuse() ? nullptr : __libc_realloc(block, size);
}
/// The library seeds its dictionaries by the clock, and what it allocates depends on the seed.
std::time_t time(std::time_t* result) noexcept
{
    if (result != nullptr) {
        *result = 0;
    }
    return 0;
}
}

namespace lodestar
{
namespace
{

/// Parses with the allocation of that number refused, and says whether there was one.
bool parseRefusing(int number, const std::string& bytes, std::optional<Result<XMLElement>>& result)
{
    refused = false;
    untilRefusal = number;
    refusing = true;
    result.emplace(XMLElement::parse(bytes));
    refusing = false;
    return refused;
}

std::string longText()
{
    std::string text;
    for (int i = 0; i < 400; ++i) {
        const std::string name = "name" + std::to_string(i);
        text += "<" + name + " n='" + std::to_string(i) + "'>some text &lt;" + std::to_string(i) + "</" + name + ">";
    }
    return text;
}

TEST(XMLMemoryTests, AShorterDocumentNeverPassesForAWholeOne)
{
    const std::string declarations = "<!DOCTYPE f [<!ENTITY e 'in<b>side</b>'><!ENTITY % p '<!ENTITY g \"&e;\">'>%p;"
                                     "<!ATTLIST f d CDATA 'default' n NMTOKENS #IMPLIED>]>";
    for (const std::string& bytes :
         {declarations + "<f xmlns='urn:f' xmlns:p='urn:p' n=' 1  2 ' p:m='&amp;&e;'>1&e;2&g;3<p:b>x</p:b>" +
              "<![CDATA[<x>]]><!-- c --><?p i?>&#65;</f>",
          "<f>" + longText() + "</f>",
          std::string("<?xml version='1.0' encoding='ISO-8859-1'?><f a='\xe4'>\xe4<b>c</b></f>"),
          std::string("<f><b>salvaged</c>&undefined;<d e='<'>f</f>")}) {
        const XMLElement whole = XMLElement::parse(bytes).value();
        const std::string reading = readArena(bytes);
        ASSERT_EQ(reading, readTree(bytes));
        std::optional<Result<XMLElement>> result;
        int number = 0;
        int harmless = 0;
        while (parseRefusing(number, bytes, result)) {
            if (result->ok()) {
                // Only the giving back of what was too much may fail without harm; it leaves more than is needed.
                ++harmless;
                ASSERT_EQ(result->value().text(), whole.text()) << "allocation " << number;
                ASSERT_GT(result->value().documentMemory(), whole.documentMemory()) << "allocation " << number;
            } else {
                ASSERT_EQ(result->error().code, XML_ERR_NO_MEMORY) << "allocation " << number;
            }
            ++number;
        }
        EXPECT_GT(number, 20) << "allocations were refused at all";
        EXPECT_LE(harmless, 7) << "one for each array of the document";
        EXPECT_EQ(readArena(bytes), reading) << "parsing after refusals is as before";
    }
}

} // namespace
} // namespace lodestar

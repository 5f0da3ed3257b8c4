// SPDX-License-Identifier: Apache-2.0
// Every single allocation of a parse refused, the library's and our own.
#include "Tests/Support/Injection.h"
#include "Tests/Support/TreeReference.h"
#include "XML/XMLDocumentBuilder.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>

extern "C" {
/// The library draws a seed for each of its tables, and what it allocates depends on them: without one seed for all,
/// the allocations of a parse have other numbers in the next, and some would never be refused.
int rand_r(unsigned* /*state*/) noexcept
{
    return 1;
}
}

namespace lodestar
{
namespace
{

using Parsed = Result<std::shared_ptr<const XMLDocument>>;

/// Parses with the allocation of that number refused, and says whether there was one.
bool parseRefusing(int number, const std::string& bytes, std::optional<Parsed>& result)
{
    const injection::Failing failing({injection::Call::Allocation}, number);
    result.emplace(XMLDocumentBuilder::parse(bytes.c_str(), bytes.size()));
    return injection::Failing::happened();
}

/// Everything that a document says.
std::string listed(const XMLDocument& document)
{
    std::string all;
    for (XMLDocument::Index i = 0; i < document.end(0); ++i) {
        all += std::to_string(document.end(i)) + ' ' + std::string(document.nameText(document.name(i)));
        for (const XMLDocument::Attribute& attribute : document.attributes(i)) {
            all += ' ' + std::string(document.nameText(attribute.name)) + '=' + std::string(document.value(attribute));
        }
        all += " '" + std::string(document.text(i)) + "'\n";
    }
    return all;
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
    int tries = 0;
    for (const std::string& bytes :
         {declarations + "<f xmlns='urn:f' xmlns:p='urn:p' n=' 1  2 ' p:m='&amp;&e;'>1&e;2&g;3<p:b>x</p:b>" +
              "<![CDATA[<x>]]><!-- c --><?p i?>&#65;</f>",
          "<f>" + longText() + "</f>", "<f><b c='1'>" + std::string(70'000, 'x') + "</b></f>",
          std::string("<?xml version='1.0' encoding='ISO-8859-1'?><f a='\xe4'>\xe4<b>c</b></f>"),
          std::string("<f><b>salvaged</c>&undefined;<d e='<'>f</f>")}) {
        const std::string reading = readArena(bytes);
        ASSERT_EQ(reading, readTree(bytes));
        const std::string whole = listed(*XMLDocumentBuilder::parse(bytes.c_str(), bytes.size()).value());
        std::optional<Parsed> result;
        int number = 0;
        int errors = 0;
        for (; parseRefusing(number, bytes, result); ++number) {
            // Memory that was to be given back, and is kept instead, is all that may be refused without an error.
            if (result->ok()) {
                ASSERT_NE(result->value(), nullptr) << "allocation " << number;
                ASSERT_EQ(listed(*result->value()), whole) << "allocation " << number;
            } else {
                ASSERT_EQ(result->error().code, XML_ERR_NO_MEMORY) << "allocation " << number;
                ++errors;
            }
        }
        EXPECT_GT(errors, number / 2) << "most allocations are needed";
        tries += number;
        EXPECT_EQ(readArena(bytes), reading) << "parsing after refusals is as before";
    }
    RecordProperty("tries", tries);
}

} // namespace
} // namespace lodestar

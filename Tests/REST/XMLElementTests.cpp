// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/XMLElement.h"
#include "Tests/REST/TreeReference.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

namespace lodestar
{
namespace
{

XMLElement parsed(std::string_view bytes)
{
    auto root = XMLElement::parse(bytes);
    return root ? std::move(root).value() : XMLElement();
}

std::string demoFeed()
{
    std::ifstream file(LODESTAR_DEMO_FOLDER "/ManagementConsole.xml");
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(XMLElementTests, ReadsChildrenTextAndAttributesByLocalName)
{
    const XMLElement root = parsed("<f:feed xmlns:f='urn:f' n='1&amp;2&lt;&#65;'>a<entry>b</entry><!-- c -->"
                                   "<f:entry>d<x>e</x>&amp;</f:entry><![CDATA[<g>]]></f:feed>");
    EXPECT_EQ(root.name(), "feed");
    EXPECT_EQ(root.childCount("entry"), 2U);
    EXPECT_EQ(root.children("entry")[1].text(), "de&");
    EXPECT_EQ(root.path({"entry"}).text(), "b");
    EXPECT_FALSE(root.path({"entry", "x"})) << "a path follows first children only";
    EXPECT_EQ(root.text(), "abde&<g>");
    EXPECT_EQ(root.attribute("n"), "1&2<A");
    EXPECT_FALSE(root.attribute("m").has_value());
}

TEST(XMLElementTests, NoElementAnswersNothing)
{
    for (const char* bytes : {"", "   ", "not xml", "{\"json\": 1}"}) {
        const XMLElement root = parsed(bytes);
        EXPECT_FALSE(root.exists()) << bytes;
        EXPECT_FALSE(root.child("entry").child("content").text().has_value());
        EXPECT_TRUE(root.children("entry").empty());
        EXPECT_FALSE(root.attribute("href").has_value());
    }
}

TEST(XMLElementTests, HandMadeDamageReadsAsTheLibrarysOwnTree)
{
    for (const char* bytes :
         {"<a><b>x</c></a>", "<a><b>x", "<a b='1' b='2'/>", "<a>&undefined;x</a>", "<a>x & y < z</a>", "<a></a><b/>",
          "<!DOCTYPE a [<!ENTITY e 'in<b>side</b>'><!ATTLIST a d CDATA 'default'>]><a c='&e;'>1&e;2&e;3</a>",
          "<a>\xff\xfe</a>", "<a><![CDATA[x]]y</a>", "<a><?p x?>t<!-- - -- --></a>",
          "<a xmlns:p='u'><p:b p:c='d'/></a>", "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xe4</a>",
          "<a b='&#38;&lt;x;'>&#x41;&#0;</a>"}) {
        EXPECT_EQ(firstDifference(bytes), "") << bytes;
    }
}

TEST(XMLElementTests, AFeedCutAtEveryByteReadsAsTheLibrarysOwnTree)
{
    const std::string feed = demoFeed();
    ASSERT_GT(feed.size(), 1000U);
    for (std::size_t length = 0; length <= feed.size(); ++length) {
        ASSERT_EQ(firstDifference(std::string_view(feed).substr(0, length)), "") << "cut at " << length;
    }
}

TEST(XMLElementTests, MutatedFeedsReadAsTheLibrarysOwnTree)
{
    const std::string feed = demoFeed();
    std::mt19937 random(20260312); // NOLINT(cert-msc51-cpp): the same feeds in every run
    const std::string_view alphabet = "<>/&;='\"! []ab0\xc3\xff";
    for (int round = 0; round < 2000; ++round) {
        std::string damaged = feed;
        for (int change = 0; change < 1 + round % 6; ++change) {
            damaged[random() % damaged.size()] = alphabet[random() % alphabet.size()];
        }
        ASSERT_EQ(firstDifference(damaged), "") << "round " << round;
    }
}

} // namespace
} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Tests/Support/TreeReference.h"
#include "XML/XMLDocumentBuilder.h"
#include "XML/XMLElement.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <sys/mman.h>
#include <unistd.h>

namespace lodestar
{
namespace
{

std::string demoFeed(const std::string& name)
{
    std::ifstream file(LODESTAR_DEMO_FOLDER "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(XMLElementTests, HandMadeDamageAndOtherEncodingsReadAsTheLibrarysOwnTree)
{
    for (const char* bytes :
         {"", "   ", "not xml", "{\"json\": 1}", "<a><b>x</c></a>", "<a><b>x", "<a b='1' b='2'/>",
          "<a>&undefined;x</a>", "<a>x & y < z</a>", "<a></a><b/>",
          "<!DOCTYPE a [<!ENTITY e 'in<b>side</b>'><!ATTLIST a d CDATA 'default'>]><a c='&e;'>1&e;2&e;3</a>",
          "<a>\xff\xfe</a>", "<a><![CDATA[x]]y</a>", "<a><?p x?>t<!-- - -- --></a>",
          "<a xmlns:p='u'><p:b p:c='d'/></a>", "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xe4</a>",
          "<a b='&#38;&lt;x;'>&#x41;&#0;</a>",
          // Entities named often, first in a value, in each other, in a declaration; what follows an error.
          "<!DOCTYPE a [<!ENTITY e 'x'>]><a b='&e;'>1&e;2&e;3</a>",
          "<!DOCTYPE a [<!ENTITY e '<b>'>]><a>1&e;2&e;3&amp;4</a>",
          "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a>1&e;2&f;3&amp;4</a>",
          "<!DOCTYPE a [<!ENTITY % p '<!ENTITY e \"x\">'>%p;%p;%q;]><a>1&e;2&amp;</a>",
          "<!DOCTYPE a [<!ATTLIST a xmlns:p CDATA 'u' p:d CDATA 'x' n NMTOKENS '1'>]><a n=' 1  2 '><p:b/><a "
          "p:d='y'/></a>",
          "<!DOCTYPE a SYSTEM 'x' [<!ELEMENT a (b|c)*><!NOTATION n SYSTEM 'x'><!ENTITY u SYSTEM 'x' NDATA "
          "n>]><a>&u;&v;</a>",
          // What the bytes are, or say that they are.
          "\xef\xbb\xbf<a>\xc3\xa4</a>", "<?xml version='1.0' encoding='utf-8'?><a>\xc3\xa4</a>",
          "<?xml version='encoding=\"UTF-8\"' encoding='ISO-8859-1'?><a>\xe4</a>",
          "<?xml version='1.0' encoding=\"UTF-8\"?><a>\r\n\xc3\xa4\r</a>",
          "<?xml version='1.0' encoding='nonsense'?><a>\xe4</a>",
          " <?xml version='1.0' encoding='ISO-8859-1'?><a>\xe4</a>"}) {
        EXPECT_EQ(firstDifference(bytes), "") << bytes;
    }
    // Two bytes a character.
    const std::string feed = demoFeed("ManagementConsole.xml");
    for (const bool bigEndian : {false, true}) {
        std::string wide = bigEndian ? std::string("\xfe\xff", 2) : std::string("\xff\xfe", 2);
        for (const char c : feed.substr(feed.find("<feed"))) {
            wide += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
        }
        EXPECT_EQ(firstDifference(wide), "");
        EXPECT_EQ(XMLElement::parse(wide).value().childCount("entry"), 1U);
        EXPECT_EQ(firstDifference(std::string_view(wide).substr(2)), "") << "without its mark";
    }
}

std::string numbered(int count, const std::function<std::string(int)>& one)
{
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += one(i);
    }
    return all;
}

std::string repeated(int count, const std::string& one)
{
    return numbered(count, [&](int) { return one; });
}

/// The arena keeps sizes, places and numbers in 16 bits where they fit.
TEST(XMLElementTests, WhatTakesMoreThan16BitsReadsAsTheLibrarysOwnTree)
{
    const auto list = [](int i) { return fmt::format("<c d='{}' e=''>1</c>", i); };
    const auto attributes = [](int i) { return fmt::format(" c{}='{}'", i, i % 7); };
    const auto textAndElement = [](int i) { return fmt::format("{:05000}<b>{}</b>", i, i); };
    std::vector<std::string> documents = {
        // Little text in each of a block's elements, much in all of them.
        fmt::format("<a>{}</a>", numbered(40, textAndElement)),
        // Lists of attributes that differ, then some of them again.
        fmt::format(
            "<a>{0}{1}</a>",
            numbered(300,
                     [&](int i) { return "<b>" + numbered(250, [&](int k) { return list(250 * i + k); }) + "</b>"; }),
            numbered(100, [&](int i) { return list(747 * i) + list(32'717 + i); })),
        fmt::format("<a>{}</a>", repeated(5, fmt::format("<b{}/>", numbered(600, attributes)))),
    };
    for (const std::size_t size : {65'534U, 65'535U, 65'536U, 70'000U}) {
        const std::string text(size, 'x');
        const std::string below = repeated(254, fmt::format("<c>{}</c>", repeated(256, "<d/>"))) +
                                  repeated(static_cast<int>(size) - 254 * 257, "<d/>");
        documents.push_back(
            fmt::format("<a><b>{0}</b><e f='{1}' g='1'/><h>{1}</h><i j='{1}'>1<k/>2</i></a>", below, text));
    }
    for (const std::string& bytes : documents) {
        EXPECT_EQ(firstDifference(bytes), "") << bytes.substr(0, 20) << " of " << bytes.size() << " bytes";
    }
}

TEST(XMLElementTests, AFeedCutAtEveryByteReadsAsTheLibrarysOwnTree)
{
    // The parser reads the bytes where they are. It must not look past them, here to where the next page cannot be
    // read.
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    auto* const pages =
        static_cast<char*>(::mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(static_cast<void*>(pages), MAP_FAILED);
    ASSERT_EQ(::mprotect(pages + page, page, PROT_NONE), 0);
    const std::string feed = demoFeed("ManagementConsole.xml");
    ASSERT_GT(feed.size(), 1000U);
    ASSERT_LT(feed.size(), page);
    RecordProperty("tries", static_cast<int>(feed.size()) + 1);
    for (std::size_t length = 0; length <= feed.size(); ++length) {
        const std::string cut = feed.substr(0, length);
        ASSERT_EQ(firstDifference(cut), "") << "cut at " << length;
        char* const begin = pages + page - length - 1;
        std::memcpy(begin, cut.c_str(), length + 1);
        ASSERT_TRUE(XMLDocumentBuilder::parse(begin, length).ok()) << length;
    }
    ::munmap(pages, 2 * page);
}

TEST(XMLElementTests, MutatedFeedsReadAsTheLibrarysOwnTree)
{
    const std::string feed = demoFeed("ManagementConsole.xml");
    std::mt19937 random(20260312); // NOLINT(cert-msc51-cpp): the same feeds in every run
    const std::string_view alphabet = "<>/&;='\"! []ab0\xc3\xff";
    constexpr int tries = 2000;
    RecordProperty("tries", tries);
    for (int round = 0; round < tries; ++round) {
        std::string damaged = feed;
        for (int change = 0; change < 1 + round % 6; ++change) {
            damaged[random() % damaged.size()] = alphabet[random() % alphabet.size()];
        }
        ASSERT_EQ(firstDifference(damaged), "") << "round " << round;
    }
}

} // namespace
} // namespace lodestar

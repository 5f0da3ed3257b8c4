// SPDX-License-Identifier: Apache-2.0
// Documents made to cost much: each must be read in little time and memory, and open nothing.
#include "Tests/Support/ProcessMemory.h"
#include "Tests/Support/ScratchFolder.h"
#include "XML/XMLElement.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <regex>
#include <sys/stat.h>

namespace lodestar
{
namespace
{

std::string repeated(std::string_view text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

std::string numbered(int from, int to, const std::function<std::string(int)>& one)
{
    std::string all;
    for (int i = from; i <= to; ++i) {
        all += one(i);
    }
    return all;
}

std::string document(const std::string& declarations, const std::string& content)
{
    return "<!DOCTYPE a [" + declarations + "]><a>" + content + "<last/></a>";
}

/// Entities that each name the one before ten times.
std::string laughs(int levels)
{
    return "<!ENTITY e0 'lol'>" + numbered(1, levels, [](int i) {
               return "<!ENTITY e" + std::to_string(i) + " '" + repeated("&e" + std::to_string(i - 1) + ";", 10) + "'>";
           });
}

std::string manyAttributes(const std::string& equalsValue = "='>' ")
{
    return "<b " + numbered(1, 100'000, [&](int i) { return "c" + std::to_string(i) + equalsValue; }) + "/>";
}

/// With each "|" made a letter both of whose bytes look like a "<".
std::string utf16(const std::string& ascii)
{
    std::string units = "\xff\xfe";
    for (const char c : ascii) {
        units += c == '|' ? '<' : c;
        units += c == '|' ? '<' : '\0';
    }
    return units;
}

struct Bomb {
    const char* name;
    std::string bytes;
    /// Whether what follows the bomb must be read.
    bool readToTheEnd;
};

std::vector<Bomb> bombs()
{
    const std::string large = repeated("x", 80'000);
    const std::string manyReferences = repeated("&e;", 26'000);
    return {
        {"nested", document(laughs(9), "&e9;"), false},
        {"nested, often named", document(laughs(9), repeated("&e4;", 5'000)), false},
        {"nested, in an attribute", document(laughs(9), "<b c='&e9;'/>"), false},
        {"quadratic text", document("<!ENTITY e '" + large + "'>", manyReferences), true},
        {"quadratic elements", document("<!ENTITY e '" + repeated("<b/>", 20'000) + "'>", manyReferences), true},
        {"quadratic, first named in an attribute",
         document("<!ENTITY e '" + large + "'>", "<b c='&e;'/>" + manyReferences), true},
        {"quadratic attributes", document("<!ENTITY e '" + large + "'>", repeated("<b c='&e;'/>", 6'600)), true},
        {"nested parameter entities",
         document("<!ENTITY % p0 \"<!ENTITY x 'y'>\">" +
                      numbered(1, 9,
                               [](int i) {
                                   return "<!ENTITY % p" + std::to_string(i) + " '" +
                                          repeated("&#37;p" + std::to_string(i - 1) + ";", 10) + "'>";
                               }) +
                      "%p9;",
                  "t"),
         false},
        {"quadratic parameter entity",
         document("<!ENTITY % p '" + repeated("<!-- x -->", 8'000) + "'>" + repeated("%p;", 26'000), "t"), false},
        {"many defaults",
         document("<!ATTLIST b " + numbered(1, 3'000, [](int i) { return "c" + std::to_string(i) + " CDATA '' "; }) +
                      ">",
                  repeated("<b/>", 20'000)),
         true},
        {"large default", document("<!ATTLIST b c CDATA '" + large + "'>", repeated("<b/>", 20'000)), true},
        {"defaults made of entities",
         document("<!ENTITY e '" + large + "'><!ATTLIST b " +
                      numbered(1, 1'000, [](int i) { return "c" + std::to_string(i) + " CDATA '&e;&e;' "; }) + ">",
                  repeated("<b/>", 10'000)),
         true},
        {"depth", repeated("<a>", 100'000) + repeated("</a>", 100'000), false},
        {"attributes", document("", manyAttributes()), false},
        {"attributes in UTF-16", utf16(document("", manyAttributes("='|' "))), false},
        {"attributes in a declared encoding",
         "<?xml version='1.0' encoding='UTF-7'?><a>" + std::regex_replace(manyAttributes(), std::regex("<"), "+ADw-"),
         false},
        {"attributes in an entity", document("<!ENTITY e \"&#60;" + manyAttributes().substr(1) + "\">", "&e;"), false},
        {"name spaces",
         document("",
                  "<b " + numbered(1, 100'000, [](int i) { return "xmlns:c" + std::to_string(i) + "='u' "; }) + "/>"),
         false},
    };
}

double threadMilliseconds()
{
    struct timespec now {
    };
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

TEST(XMLLimitsTests, BombsTakeLittleTimeAndMemory)
{
    for (const Bomb& bomb : bombs()) {
        const double before = startPeak();
        const double start = threadMilliseconds();
        const auto root = XMLElement::parse(bomb.bytes);
        EXPECT_LE(threadMilliseconds() - start, 100) << bomb.name;
        EXPECT_LE(memory("VmHWM") - before, 20e6) << bomb.name;
        if (bomb.readToTheEnd) {
            ASSERT_TRUE(root.ok()) << bomb.name;
            EXPECT_TRUE(root.value().child("last").exists()) << bomb.name;
        }
    }
}

struct Flood {
    const char* name;
    const char* before;
    std::function<std::string(int)> one;
    /// Otherwise what stood before the flood is read.
    bool refused;
};

std::vector<Flood> floods()
{
    const auto n = [](int i) { return std::to_string(i); };
    return {
        {"names", "<a>", [n](int i) { return "<n" + n(i) + "/>"; }, true},
        {"attribute names", "<a>", [n](int i) { return "<b n" + n(i) + "=''/>"; }, true},
        {"name spaces", "<a>", [n](int i) { return "<b xmlns='u" + n(i) + "'/>"; }, true},
        {"instructions", "<a>", [n](int i) { return "<?n" + n(i) + "?>"; }, true},
        {"values of a declaration", "<!DOCTYPE a [<!ATTLIST a b (v", [n](int i) { return "|v" + n(i); }, true},
        {"elements", "<a>", [](int) { return "<b/>"; }, true},
        {"tags of many attributes", "<a>",
         [n](int) { return "<b" + numbered(1, 800, [n](int k) { return " c" + n(k) + "=''"; }) + "/>"; }, true},
        {"attributes twice", "<a><first/>", [](int) { return "<b" + repeated(" c=''", 800) + "/>"; }, false},
        {"ampersands", "<a><first/>", [](int) { return "&"; }, false},
        {"ampersands in a value", "<a><first/><b c='", [](int) { return "&"; }, false},
        {"angle brackets", "<a><first/>", [](int) { return "<"; }, false},
        {"ends of others", "<a><first/>", [](int) { return "<b></c>"; }, false},
        {"comments", "<a><first/>", [](int) { return "<!-- -- -->"; }, false},
        {"control characters", "<a><first/>", [](int) { return "\x01"; }, false},
        {"depth", "<a><first/>", [](int) { return "<b>"; }, false},
    };
}

TEST(XMLLimitsTests, FloodsTakeAtMostTwiceAPlainFeed)
{
    constexpr std::size_t size = 2'000'000;
#ifdef __SANITIZE_ADDRESS__
    constexpr int mostTimes = 4; // Our functions are slowed down and the library's are not.
#else
    constexpr int mostTimes = 2;
#endif
    const auto filled = [](std::string bytes, const std::function<std::string(int)>& one) {
        for (int i = 0; bytes.size() < size; ++i) {
            bytes += one(i);
        }
        return bytes;
    };
    const auto cost = [](const std::string& bytes) {
        double least = 1e9;
        for (int i = 0; i < 3; ++i) {
            const double start = threadMilliseconds();
            static_cast<void>(XMLElement::parse(bytes));
            least = std::min(least, threadMilliseconds() - start);
        }
        return least;
    };
    const double plain = cost(filled("<a>", [](int i) {
        return "<entry><id>" + std::to_string(i) + "</id><Name kb='CUD' kxe='false'>partition-" + std::to_string(i) +
               "</Name><State kb='ROR'>running</State></entry>";
    }));
    for (const Flood& flood : floods()) {
        const std::string bytes = filled(flood.before, flood.one);
        EXPECT_LE(cost(bytes), mostTimes * plain) << flood.name;
        const auto root = XMLElement::parse(bytes);
        EXPECT_EQ(root.ok(), !flood.refused) << flood.name;
        if (root) {
            EXPECT_TRUE(root.value().child("first").exists()) << flood.name;
        }
    }
}

TEST(XMLLimitsTests, LongStretchesThatAreNoMonstrousTagAreRead)
{
    const std::string equations = repeated("a=\"b\" ", 5'000);
    for (const std::string& bytes :
         {"<a><b>" + equations + "</b><last/></a>", "<a><!-- " + equations + " --><last/></a>",
          "<a><b c='" + repeated("\"", 9'000) + "'/><last/></a>",
          "<a>" + repeated("<b c='1' d=\"2\"/>", 9'000) + "<last/></a>"}) {
        const auto root = XMLElement::parse(bytes);
        ASSERT_TRUE(root.ok());
        EXPECT_TRUE(root.value().child("last").exists()) << bytes.substr(0, 20);
    }
}

int loads = 0;

TEST(XMLLimitsTests, NothingOutsideTheDocumentIsOpened)
{
    // Whoever opens a pipe that nobody writes to waits for ever.
    const ScratchFolder folder;
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    const xmlExternalEntityLoader usual = xmlGetExternalEntityLoader();
    loads = 0;
    xmlSetExternalEntityLoader([](const char*, const char*, xmlParserCtxtPtr) -> xmlParserInputPtr {
        ++loads;
        return nullptr;
    });
    // The first round counts what the library would load, the second lets it.
    for (int round = 0; round < 2; ++round) {
        for (const std::string& address : {pipe, "file://" + pipe, std::string("http://127.0.0.1:9/x")}) {
            const auto root = XMLElement::parse(
                "<!DOCTYPE a SYSTEM '" + address + "' [<!ENTITY e SYSTEM '" + address + "'><!ENTITY % p SYSTEM '" +
                address + "'>%p;]><a xmlns:i='http://www.w3.org/2001/XInclude'><i:include href='" + address +
                "'/>1&e;<b c='&e;'/><last/></a>");
            ASSERT_TRUE(root.ok());
            EXPECT_EQ(root.value().text(), "1");
            EXPECT_TRUE(root.value().child("last").exists());
        }
        xmlSetExternalEntityLoader(usual);
    }
    EXPECT_EQ(loads, 0);
}

} // namespace
} // namespace lodestar

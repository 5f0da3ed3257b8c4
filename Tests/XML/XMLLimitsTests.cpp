// SPDX-License-Identifier: Apache-2.0
// Documents made to cost much: each must be read in little time and memory, and open nothing. And whose feeds may be
// kept when memory is short.
#include "Tests/Support/ProcessMemory.h"
#include "Tests/Support/ScratchFolder.h"
#include "XML/KeptBytes.h"
#include "XML/KeptRoom.h"
#include "XML/XMLElement.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <algorithm>
#include <ctime>
#include <future>
#include <sys/stat.h>

namespace lodestar
{
namespace
{

/// The form once more, with the number in the place of each "@" and the number before it in the place of each "^".
std::string numbered(const std::string& form, int number)
{
    std::string text;
    for (const char c : form) {
        text += c == '@' ? std::to_string(number) : c == '^' ? std::to_string(number - 1) : std::string(1, c);
    }
    return text;
}

std::string times(int count, const std::string& form)
{
    std::string all;
    for (int i = 1; i <= count; ++i) {
        all += numbered(form, i);
    }
    return all;
}

/// A megabyte of the form.
std::string flood(std::string bytes, const std::string& form)
{
    for (int i = 1; bytes.size() < 1'000'000; ++i) {
        bytes += numbered(form, i);
    }
    return bytes;
}

std::string document(const std::string& declarations, const std::string& content)
{
    return "<!DOCTYPE a [" + declarations + "]><a>" + content + "<last/></a>";
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

enum class Read {
    Whole, ///< what follows the bomb, too
    Begin, ///< what stands before it
    None,  ///< the document is refused
    Any
};

struct Bomb {
    const char* name;
    std::string bytes;
    Read read;
};

std::vector<Bomb> bombs()
{
    const std::string laughs = "<!ENTITY e0 'lol'>" + times(9, "<!ENTITY e@ '" + times(10, "&e^;") + "'>");
    const std::string large = "<!ENTITY e '" + times(80'000, "x") + "'>";
    const std::string references = times(26'000, "&e;");
    const std::string attributes = "b " + times(100'000, "c@='>' ") + "/>";
    return {
        {"nested", document(laughs, "&e9;"), Read::Any},
        {"nested, often named", document(laughs, times(5'000, "&e4;")), Read::Any},
        {"nested, in an attribute", document(laughs, "<b c='&e9;'/>"), Read::Any},
        {"quadratic text", document(large, references), Read::Whole},
        {"quadratic elements", document("<!ENTITY e '" + times(20'000, "<b/>") + "'>", references), Read::Whole},
        {"quadratic, first named in an attribute", document(large, "<b c='&e;'/>" + references), Read::Whole},
        {"quadratic attributes", document(large, times(6'600, "<b c='&e;'/>")), Read::Whole},
        {"nested parameter entities",
         document("<!ENTITY % p0 \"<!ENTITY x 'y'>\">" + times(9, "<!ENTITY % p@ '" + times(10, "&#37;p^;") + "'>") +
                      "%p9;",
                  "t"),
         Read::Any},
        {"quadratic parameter entity",
         document("<!ENTITY % p '" + times(8'000, "<!-- x -->") + "'>" + times(26'000, "%p;"), "t"), Read::Any},
        {"many defaults", document("<!ATTLIST b " + times(3'000, "c@ CDATA '' ") + ">", times(20'000, "<b/>")),
         Read::Whole},
        {"large default", document("<!ATTLIST b c CDATA '" + times(80'000, "x") + "'>", times(20'000, "<b/>")),
         Read::Whole},
        {"defaults made of entities",
         document(large + "<!ATTLIST b " + times(1'000, "c@ CDATA '&e;&e;' ") + ">", times(10'000, "<b/>")),
         Read::Whole},
        {"depth", times(100'000, "<a>") + times(100'000, "</a>"), Read::Any},
        {"attributes", document("", "<" + attributes), Read::Any},
        {"attributes in UTF-16", utf16(document("", "<b " + times(100'000, "c@='|' ") + "/>")), Read::Any},
        {"attributes in a declared encoding", "<?xml version='1.0' encoding='UTF-7'?><a>+ADw-" + attributes, Read::Any},
        {"attributes in an entity", document("<!ENTITY e \"&#60;" + attributes + "\">", "&e;"), Read::Any},
        {"name spaces", document("", "<b " + times(100'000, "xmlns:c@='u' ") + "/>"), Read::Any},
        {"many names", flood("<a>", "<n@/>"), Read::None},
        {"many name spaces", flood("<a>", "<b xmlns='u@'/>"), Read::None},
        {"values of a declaration", flood("<!DOCTYPE a [<!ATTLIST a b (v", "|v@"), Read::None},
        {"elements", flood("<a>", "<b/>"), Read::None},
        {"tags of many attributes", flood("<a>", "<b" + times(800, " c@=''") + "/>"), Read::None},
        {"attributes twice", flood("<a><first/>", "<b" + times(40, " c=''") + "/>"), Read::Begin},
        {"references", flood("<a>", "&lt;"), Read::None},
        {"references in values", flood("<a>", "<b c='&lt;&lt;&lt;&lt;'/>"), Read::None},
        {"declared references", flood("<!DOCTYPE a [<!ENTITY e 'x'>]><a>", "&e;"), Read::None},
        {"ampersands", flood("<a><first/>", "&"), Read::Begin},
        {"ampersands in a value", flood("<a><first/><b c='", "&"), Read::Begin},
        {"levels", flood("<a><first/>", "<b>"), Read::Begin},
        // Long stretches that are no tag with too many attributes.
        {"equations in a text", document("", "<b>" + times(5'000, "a=\"b\" ") + "</b>"), Read::Whole},
        {"equations in a comment", document("", "<!-- " + times(5'000, "a=\"b\" ") + " -->"), Read::Whole},
        {"quotes", document("", "<b c='" + times(9'000, "\"") + "'/>"), Read::Whole},
        {"small tags", document("", times(9'000, "<b c='1' d=\"2\"/>")), Read::Whole}};
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
        if (bomb.read == Read::None) {
            EXPECT_FALSE(root.ok()) << bomb.name;
        } else if (bomb.read != Read::Any) {
            ASSERT_TRUE(root.ok()) << bomb.name;
            EXPECT_TRUE(root.value().child(bomb.read == Read::Whole ? "last" : "first").exists()) << bomb.name;
        }
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

constexpr std::size_t feeds = 1000; ///< bytes

struct Console {
    std::promise<std::shared_ptr<KeptRoom::Share>> begun;
    std::future<std::shared_ptr<KeptRoom::Share>> share = begun.get_future();

    void ask(Urgency urgency = Urgency::Fleet)
    {
        KeptRoom::whenThereIs(feeds, urgency,
                              [this](std::shared_ptr<KeptRoom::Share> room) { begun.set_value(std::move(room)); });
    }
    bool hasBegun() const { return share.wait_for(std::chrono::milliseconds(50)) == std::future_status::ready; }
};

TEST(KeptRoomTests, ConsolesWaitForEachOtherWhereOldAndNewFeedsDoNotFitBesideEachOther)
{
    // The last bytes are for small documents only.
    constexpr std::size_t forSmall = 4UL * 1024 * 1024;
    KeptBytes large;
    ASSERT_TRUE(large.resize(KeptBytes::limit() - KeptBytes::total() - forSmall));
    std::vector<std::unique_ptr<KeptBytes>> others;
    for (std::size_t left = forSmall; left > 0; left -= others.back()->size()) {
        others.push_back(std::make_unique<KeptBytes>());
        ASSERT_TRUE(others.back()->resize(left > 2 * feeds ? std::min<std::size_t>(left - 2 * feeds, 16'000) : left));
    }
    Console first;
    Console second;
    Console third;
    Console persons;
    first.ask();
    EXPECT_TRUE(first.hasBegun()) << "nobody else would make room for it";
    second.ask();
    third.ask();
    persons.ask(Urgency::Person);
    EXPECT_FALSE(persons.hasBegun());
    others.pop_back();
    EXPECT_TRUE(persons.hasBegun()) << "a person goes first";
    EXPECT_FALSE(second.hasBegun()) << "that was all";
    first.share.get();
    EXPECT_TRUE(second.hasBegun());
    persons.share.get()->didKeep(feeds);
    EXPECT_TRUE(third.hasBegun()) << "what is kept is promised no more";
}

} // namespace
} // namespace lodestar

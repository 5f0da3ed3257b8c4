// SPDX-License-Identifier: Apache-2.0
#include "Inventory/FeedDate.h"
#include "Inventory/GroupedFeed.h"
#include "Inventory/SearchIndex.h"

#include <gmock/gmock.h>

#include <future>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using namespace std::chrono_literals;

TEST(FeedDateTests, ReadsThePatternAndNothingElse)
{
    EXPECT_EQ(parseFeedDate("2026-07-03T10:25:00.000Z"), (FeedDate{2026y / 7 / 3, 10h + 25min}));
    EXPECT_EQ(parseFeedDate("2024-02-29T23:59:59.999Z"), (FeedDate{2024y / 2 / 29, 24h - 1ms}));
    for (const char* text :
         {"", "2026-07-03", "2026-07-03T10:25:00Z", "2026-07-03T10:25:00.000", "2026-07-03T10:25:00.000z",
          "2026-07-03T10:25:00.000+02:00", "2026-07-03 10:25:00.000Z", " 2026-07-03T10:25:00.000Z",
          "2026-07-03T10:25:00.000Z\n", "26-07-03T10:25:00.000Z", "2026-13-03T10:25:00.000Z",
          "0000-01-01T00:00:00.000Z", "2026-02-29T10:25:00.000Z", "2026-07-03T24:00:00.000Z",
          "2026-07-03T10:60:00.000Z", "2026-07-03T10:25:00.0a0Z", "２026-07-03T10:25:00.00Z"}) {
        EXPECT_EQ(parseFeedDate(text), std::nullopt) << text;
    }
}

TEST(SearchIndexTests, FindsRowsByAnyPartOfTheirNameWhateverItsCase)
{
    SearchIndex index;
    for (const char* name : {"ABC-1", "", "xabcx", "abcabc", "b", "ÄRGER", "a", "bc", "Straße"}) {
        index.add(name);
    }
    EXPECT_THAT(index.rowsContaining("abc"), ElementsAre(0U, 2U, 3U));
    EXPECT_THAT(index.rowsContaining("ABC"), ElementsAre(0U, 2U, 3U));
    EXPECT_THAT(index.rowsContaining("ärg"), ElementsAre(5U));
    EXPECT_THAT(index.rowsContaining("bc"), ElementsAre(0U, 2U, 3U, 7U));
    EXPECT_THAT(index.rowsContaining("STRAẞE"), ElementsAre(8U));
    EXPECT_THAT(index.rowsContaining("ss"), IsEmpty()) << "no part of the name could be marked";
    EXPECT_THAT(index.rowsContaining("abc-12"), IsEmpty());
    // Not across the end of one name and the start of the next.
    EXPECT_THAT(index.rowsContaining(std::string_view("a\0bc", 4)), IsEmpty());
    EXPECT_EQ(index.rowsContaining("").size(), 9U);
}

TEST(GroupedFeedTests, KeepsKeysInTheOrderOfTheirFirstElementOnAnyThreadAndFiltersPerKey)
{
    std::string entries;
    for (const char* content : {"<p>LPAR01</p>", "<p>web</p>", "<q>LPAR</q>", "<p>MyLpar2</p>", "<p>of no system</p>",
                                "<p>mail</p>", "<p>not looked up</p>"}) {
        entries += "<entry><content>" + std::string(content) + "</content></entry>";
    }
    const Feed feed(XMLElement::parse("<f>" + entries + "</f>").value());
    const std::vector<std::optional<std::string>> systems = {"zeta", "alpha", "q", "zeta", std::nullopt, "mid"};
    const SearchText textOf = [](const XMLElement& element) { return element.text().value_or(""); };

    // Rows are made of the feed alone: on any thread, on several at once.
    const auto rows = [&] {
        GroupedFeed made = groupedBySystem(feed, "p", systems, textOf);
        made.prepareSearch();
        return made;
    };
    auto others = std::async(std::launch::async, rows);
    auto listed = std::async(std::launch::async, [&] { return elementsOf(feed, "p", textOf); });
    GroupedFeed groups = rows();
    std::vector<XMLElement> all = listed.get().elements();
    ASSERT_EQ(all.size(), 6U);
    all.erase(all.begin() + 3);
    EXPECT_EQ(others.get().elementsAt(0), groups.elementsAt(0));
    ASSERT_EQ(groups.groupCount(), 3U);
    EXPECT_EQ(groups.keyAt(0) + groups.keyAt(1) + groups.keyAt(2) + groups.keyAt(3), "zetaalphamid");
    EXPECT_THAT(groups.elementsAt(0), ElementsAre(all[0], all[2]));
    EXPECT_THAT(groups.elementsAt(7), IsEmpty());
    EXPECT_EQ(groups.groupOf("mid"), 2U);
    EXPECT_EQ(groups.groupOf("none"), std::nullopt);

    EXPECT_EQ(groups.containing("lpar").groupCount(), 1U);
    // What comes after a search is found by the next one, whether in a group that was searched or in a new one.
    GroupedFeed more(textOf);
    more.append("last", all[0]);
    more.append("zeta", all[1]);
    more.append("zeta", all[2]);
    groups.append(std::move(more));
    const GroupedFeed foundThen = groups.containing("LPAR");
    ASSERT_EQ(foundThen.groupCount(), 2U);
    EXPECT_THAT(foundThen.elementsAt(0), ElementsAre(all[0], all[2], all[2]));
    EXPECT_EQ(foundThen.keyAt(1), "last");
    groups.clear();
    EXPECT_EQ(groups.containing("").groupCount(), 0U);
    EXPECT_EQ(groups.groupCount(), 0U);
    EXPECT_EQ(groups.groupOf("zeta"), std::nullopt);
}

} // namespace
} // namespace lodestar::test

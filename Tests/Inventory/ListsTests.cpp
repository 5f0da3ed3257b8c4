// SPDX-License-Identifier: Apache-2.0
#include "Inventory/FeedDate.h"
#include "Inventory/SearchIndex.h"

#include <gmock/gmock.h>

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

} // namespace
} // namespace lodestar::test

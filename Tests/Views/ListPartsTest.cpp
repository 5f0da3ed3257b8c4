// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/Common/DetailViewController.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/Common/GroupedFeed.h"
#include "Views/Common/SearchIndex.h"
#include "Views/Common/TitleHeader.h"

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using namespace std::chrono_literals;

const FeedDate summerMorning{2026y / 7 / 3, 10h + 25min};

TEST(FeedTimeStampTest, ReadsThePatternAndNothingElse)
{
    EXPECT_EQ(parseFeedDate("2026-07-03T10:25:00.000Z"), summerMorning);
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

TEST(FeedTimeStampTest, ShowsTheWallClockInEveryZoneAndInTheLocalesForm)
{
    const QByteArray before = qgetenv("TZ");
    // In New York this time does not exist: its clocks jump over it.
    QByteArrayList zones = {"UTC", "Asia/Kathmandu", "America/New_York"};
    for (int hours = -14; hours <= 12; ++hours) {
        zones << "Etc/GMT" + QByteArray(hours > 0 ? "+" : "") + QByteArray::number(hours);
    }
    for (const QByteArray& zone : zones) {
        qputenv("TZ", zone);
        EXPECT_EQ(mediumDateShortTime(*parseFeedDate("2026-03-08T02:30:00.000Z"), QLocale("en_GB")),
                  "8 Mar 2026, 02:30");
    }
    qputenv("TZ", before);
    EXPECT_EQ(mediumDateShortTime(summerMorning, QLocale::c()), "3 Jul 2026, 10:25");
    EXPECT_EQ(mediumDateShortTime(summerMorning, QLocale("en_US")), "Jul 3, 2026, 10:25 AM");
    EXPECT_EQ(mediumDateShortTime(summerMorning, QLocale("de_DE")), "03.07.2026, 10:25");
    EXPECT_EQ(mediumDateShortTime(summerMorning, QLocale("ja_JP")), "2026/07/03, 10:25");
}

TEST(SearchIndexTest, FindsRowsByAnyPartOfTheirNameWhateverItsCase)
{
    SearchIndex index;
    for (const char* name : {"ABC-1", "", "xabcx", "abcabc", "b", "ÄRGER", "a", "bc"}) {
        index.add(name);
    }
    EXPECT_THAT(index.rowsContaining("abc"), ElementsAre(0U, 2U, 3U));
    EXPECT_THAT(index.rowsContaining("ABC"), ElementsAre(0U, 2U, 3U));
    EXPECT_THAT(index.rowsContaining("ärg"), ElementsAre(5U));
    EXPECT_THAT(index.rowsContaining("bc"), ElementsAre(0U, 2U, 3U, 7U));
    EXPECT_THAT(index.rowsContaining("abc-12"), IsEmpty());
    // Not across the end of one name and the start of the next.
    EXPECT_THAT(index.rowsContaining(std::string_view("a\0bc", 4)), IsEmpty());
    EXPECT_EQ(index.rowsContaining("").size(), 8U);
}

TEST(GroupedFeedTest, KeepsKeysInTheOrderOfTheirFirstElementAndFiltersPerKey)
{
    const auto feed = XMLElement::parse("<f><p>LPAR01</p><p>web</p><p>MyLpar2</p><p>mail</p></f>").value();
    const std::vector<XMLElement> all = feed.children("p");
    const auto textOf = [](const XMLElement& element) { return element.text().value_or(""); };
    GroupedFeed groups(textOf);
    const std::vector<std::string> systems = {"zeta", "alpha", "zeta", "mid"};
    for (std::size_t i = 0; i < all.size(); ++i) {
        groups.append(systems[i], all[i]);
    }
    ASSERT_EQ(groups.groupCount(), 3U);
    EXPECT_EQ(groups.keyAt(0), "zeta");
    EXPECT_EQ(groups.keyAt(1), "alpha");
    EXPECT_EQ(groups.keyAt(2), "mid");
    EXPECT_EQ(groups.keyAt(3), "");
    EXPECT_THAT(groups.elementsAt(0), ElementsAre(all[0], all[2]));
    EXPECT_THAT(groups.elementsAt(7), IsEmpty());
    EXPECT_EQ(groups.groupOf("mid"), 2U);
    EXPECT_EQ(groups.groupOf("none"), std::nullopt);

    const std::vector<ElementGroup> found = groups.containing("lpar");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].system, "zeta");
    EXPECT_THAT(found[0].elements, ElementsAre(all[0], all[2]));

    // What comes after a search is found by the next one, whether in a group that was searched or in a new one.
    GroupedFeed more(textOf);
    more.append("last", all[0]);
    more.append("zeta", all[1]);
    more.append("zeta", all[2]);
    EXPECT_EQ(more.containing("w").size(), 1U);
    groups.append(std::move(more));
    const std::vector<ElementGroup> foundThen = groups.containing("LPAR");
    ASSERT_EQ(foundThen.size(), 2U);
    EXPECT_THAT(foundThen[0].elements, ElementsAre(all[0], all[2], all[2]));
    EXPECT_EQ(foundThen[1].system, "last");
    groups.clear();
    EXPECT_THAT(groups.containing(""), IsEmpty());
    EXPECT_EQ(groups.groupCount(), 0U);
    EXPECT_EQ(groups.groupOf("zeta"), std::nullopt);
}

TEST(TitleHeaderDeathTest, ATitleWithoutItsViewStopsTheProgram)
{
    TitleHeader header;
    EXPECT_DEATH(header.setHeaderTitle("Managed Systems", ""), "self.navigationItem.titleView != nil");
    header.setCustomNavigationBar();
    EXPECT_EQ(header.titleLabel()->text(), "Title");
    EXPECT_EQ(header.subtitleLabel()->text(), "Subtitle");
    header.setHeaderTitle("Managed Systems", "updating...");
    EXPECT_EQ(header.titleLabel()->text(), "Managed Systems");
    EXPECT_EQ(header.subtitleLabel()->text(), "updating...");
}

class Facts : public DetailViewController
{
public:
    explicit Facts(char16_t separator) : DetailViewController(separator) { setSectionTitles({"First"}); }
    void show(const std::vector<std::pair<QString, std::optional<std::string>>>& facts)
    {
        DetailSection section;
        for (const auto& [label, value] : facts) {
            section.data << row(label, value);
        }
        setTableData({section, {}});
    }
    DetailCell cell(int row) { return cellForRowAtIndexPath(TableKind::Main, {0, row}).value<DetailCell>(); }
};

TEST(DetailViewControllerTest, ShowsWhatStandsBetweenTheFirstTwoSeparators)
{
    Facts colon(u':');
    colon.show({{"Name", "web:01:blue"}, {"ID", std::nullopt}, {"Type", ""}});
    EXPECT_EQ(colon.cell(0), (DetailCell{"Name", "web", false}));
    EXPECT_EQ(colon.cell(1), (DetailCell{"ID", "(null)", false}));
    EXPECT_EQ(colon.cell(2), (DetailCell{"Type", "", false}));
    EXPECT_EQ(colon.cell(3), DetailCell{});
    EXPECT_EQ(colon.titleForHeaderInSection(TableKind::Main, 0), "First");
    EXPECT_EQ(colon.titleForHeaderInSection(TableKind::Main, 1), "");
    // Two headers and three rows.
    EXPECT_EQ(colon.tableView()->count(), 5);

    Facts tilde(u'~');
    tilde.show({{"Reported", "10:25~11:00"}});
    EXPECT_EQ(tilde.cell(0), (DetailCell{"Reported", "10:25", false}));
}

} // namespace
} // namespace lodestar::testing

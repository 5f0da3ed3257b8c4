// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/Common/DetailViewController.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/Common/TitleHeader.h"

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using namespace std::chrono_literals;

const FeedDate summerMorning{2026y / 7 / 3, 10h + 25min};

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

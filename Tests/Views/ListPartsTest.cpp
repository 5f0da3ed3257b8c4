// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/Common/TitleHeader.h"

namespace lodestar::testing
{
namespace
{

using namespace std::chrono_literals;

const FeedDate summerMorning{2026y / 7 / 3, 10h + 25min};

TEST(FeedTimeStampTest, ShowsTheWallClockInEveryZoneAndInTheLocalesForm)
{
    // In New York this time does not exist: its clocks jump over it.
    QByteArrayList zones = {"UTC", "Asia/Kathmandu", "America/New_York"};
    for (int hours = -14; hours <= 12; ++hours) {
        zones << "Etc/GMT" + QByteArray(hours > 0 ? "+" : "") + QByteArray::number(hours);
    }
    for (const QByteArray& zone : zones) {
        const InZone there(zone);
        EXPECT_EQ(mediumDateShortTime(*parseFeedDate("2026-03-08T02:30:00.000Z"), QLocale("en_GB")),
                  "8 Mar 2026, 02:30");
    }
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

} // namespace
} // namespace lodestar::testing

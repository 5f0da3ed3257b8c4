// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchSettings.h"

#include <gtest/gtest.h>

namespace lodestar::test
{
namespace
{

using namespace std::chrono_literals;

TEST(WatchSettingsTests, ATextKeepsEverySettingAndADamagedOneLosesOnlyItsOwn)
{
    WatchSettings settings;
    settings.on = settings.better = settings.quiet = true;
    settings.worse = false;
    settings.every = 60min;
    settings.newEvents = WatchSettings::NewEvents::OpenCallHome;
    settings.quietFrom = 0min;
    settings.quietUntil = 1439min;
    settings.without = {"", "plain.example", "a b\n\\n on 0\n", "[fe80::1%eth0]", "\\"};
    EXPECT_EQ(WatchSettings::ofText(settings.text()), settings);
    const WatchSettings damaged =
        WatchSettings::ofText("on\nevery 7\nworse yes\nbetter 1\nevents all\nfrom 1440\nuntil -1\n\nfuture 1\nquiet 1");
    WatchSettings expected;
    expected.better = expected.quiet = true;
    EXPECT_EQ(damaged, expected);

    EXPECT_TRUE(expected.isQuietAt(22h) && expected.isQuietAt(0min) && expected.isQuietAt(389min));
    EXPECT_FALSE(expected.isQuietAt(390min) || expected.isQuietAt(22h - 1min));
    expected.quietFrom = 12h;
    expected.quietUntil = 13h;
    EXPECT_TRUE(expected.isQuietAt(12h) && !expected.isQuietAt(13h) && !expected.isQuietAt(11h));
    expected.quietUntil = 12h;
    EXPECT_FALSE(expected.isQuietAt(12h));
}

} // namespace
} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchNight.h"
#include "Tests/Fleet/WatchFixture.h"

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WatchNightTests : public WatchFixture
{
protected:
    void beQuietAndRead(std::chrono::minutes every)
    {
        WatchSettings settings = watch->settings();
        settings.quiet = true;
        watch->setSettings(settings);
        turnOn(every);
    }
};

TEST_F(WatchNightTests, QuietHoursEndInOneSum)
{
    stage->refreshTakes = 10s;
    beQuietAndRead(15min);
    stage->pass(23h);
    worsen(0, system, FindingRank::SystemError);
    worsen(1, partition, FindingRank::PartitionError);
    stage->pass(3h);
    stage->found.list.clear();
    worsen(0, system, FindingRank::SystemError); // once more
    stage->pass(4h + 30min - 1ms);
    EXPECT_THAT(messages->shown, IsEmpty());
    stage->pass(1s);
    EXPECT_THAT(messages->shown, ElementsAre("night"));
    EXPECT_EQ(news.worse.size(), 2U);
    EXPECT_EQ(news.worseNow.size(), 1U);
    stage->pass(day);
    EXPECT_THAT(messages->shown, SizeIs(1)) << "a night in which nothing got worse";

    worsen(0, system, FindingRank::SystemError);
    stage->pass(15min);
    EXPECT_THAT(messages->shown, ElementsAre("night", "news")) << "in the day at once";
    stage->pass(17h);
    worsen(1, partition, FindingRank::PartitionError);
    stage->pass(1h);
    EXPECT_THAT(messages->shown, SizeIs(2));
    stage->corvels.erase(stage->corvels.begin() + 1);
    consolesChanged();
    stage->pass(day);
    EXPECT_THAT(messages->shown, SizeIs(2)) << "the console of the night's news is deleted";

    passUntil(23h);
    worsen(1, partition, FindingRank::PartitionError);
    passUntil(6h + 10min);
    stage->refreshTakes = 1h;
    worsen(0, system, FindingRank::SystemError);
    passUntil(8h);
    EXPECT_THAT(messages->shown, ElementsAre("night", "news", "night")) << "the night ended during a refresh";
    EXPECT_EQ(news.worse.size(), 2U);
}

TEST_F(WatchNightTests, ANightIsSummedUpThoughLodestarEndedInIt)
{
    beQuietAndRead(60min);
    passUntil(23h);
    worsen(0, system, FindingRank::SystemError);
    worsen(1, {std::string(ObjectType::LogicalPartition), "a\tb\n\\t\u202e"}, FindingRank::PartitionError);
    passUntil(2h);
    begin();
    worsen(2, event, FindingRank::GroupError);
    passUntil(4h);
    const auto findings = std::exchange(stage->found.list, {});
    stage->reading.notTried = 3;
    watch.reset();
    stage->sleep(5h);
    begin();
    stage->pass(50min);
    EXPECT_THAT(messages->shown, IsEmpty()) << "nothing is known of the morning yet";
    stage->reading.notTried = 0;
    stage->found.list = {findings[0]};
    stage->readBy(3, 10s);
    EXPECT_THAT(messages->shown, ElementsAre("night"));
    EXPECT_THAT(namesOfWorse(), testing::UnorderedElementsAre("helios", "a\tb\n\\t\u202e", "1042"));
    EXPECT_THAT(news.worseNow, SizeIs(1));
    EXPECT_FALSE(stage->settings.contains("watch.night"));

    // Who turns the watch off does not want to hear of the night, and a deleted console leaves no trace of itself.
    passUntil(23h);
    worsen(0, system, FindingRank::SystemError);
    worsen(1, partition, FindingRank::PartitionError);
    passUntil(2h);
    EXPECT_THAT(stage->settings.at("watch.night"), testing::HasSubstr("two.example"));
    stage->corvels.erase(stage->corvels.begin() + 1);
    consolesChanged();
    EXPECT_THAT(stage->settings.at("watch.night"), testing::Not(testing::HasSubstr("two.example")));
    const std::string kept = stage->settings.at("watch.night");
    WatchSettings settings = watch->settings();
    settings.on = false;
    watch->setSettings(settings);
    EXPECT_FALSE(stage->settings.contains("watch.night"));

    // Of a night long ago, and of a text that something else made, nothing is told.
    EXPECT_FALSE(WatchNight::ofText(kept, stage->wallNow()).empty());
    EXPECT_TRUE(WatchNight::ofText(kept, stage->wallNow() + 2 * day).empty());
    EXPECT_TRUE(WatchNight::ofText("x\n1\t2\t77\t0\t0\ta\tb\tc\td\te\tf\tg\n" + kept.substr(0, kept.size() / 2),
                                   stage->wallNow())
                    .empty());
    Change change;
    change.seen = stage->wallNow();
    WatchNight large;
    for (int i = 0; i < 3000; ++i) {
        change.address = std::to_string(i);
        change.name = std::string(longestKeptText, '\n');
        large.add({change});
    }
    EXPECT_LE(large.text().size(), WatchNight::longestText);
    EXPECT_GT(WatchNight::ofText(large.text(), stage->wallNow()).sum({}).worse.size(), 200U);
}

} // namespace
} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/URLError.h"
#include "Tests/Fleet/WatchFixture.h"
#include "Tests/Support/LongRun.h"

#include <algorithm>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using Connectivity = NetworkState::Connectivity;
using WatchTests = WatchFixture;

TEST_F(WatchTests, ReadsAtItsIntervalThroughPullsSleepAndNetworks)
{
    stage->pass(3h);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty()) << "it is off at first";
    EXPECT_EQ(watch->nextRefresh(), std::nullopt);
    EXPECT_EQ(watch->oldAge(), 1h);

    stage->refreshTakes = 40s;
    turnOn(15min);
    EXPECT_EQ(watch->nextRefresh(), stage->wallNow() + 15min);
    EXPECT_LE(watch->oldAge(), 15min + 1s);
    stage->pass(15min - 1s);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty());
    stage->pass(1s);
    EXPECT_THAT(stage->takeRefreshed(), ElementsAre("one", "two", "three"));
    EXPECT_EQ(watch->nextRefresh(), std::nullopt) << "it is reading";
    stage->pass(39s);
    EXPECT_GE(watch->oldAge(), 15min + 39s) << "nothing looks old while it is read again";
    stage->pass(1s);
    EXPECT_EQ(watch->nextRefresh(), stage->wallNow() + 15min);

    stage->pass(14min);
    stage->readBy(3, 5min);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty()) << "a pull was under way";
    EXPECT_EQ(watch->nextRefresh(), stage->wallNow() + 15min);
    stage->pass(14min);
    stage->readBy(1, 2min);
    EXPECT_THAT(stage->takeRefreshed(), SizeIs(3)) << "one console read by hand holds up, but is not all";
    stage->pass(68s);

    stage->sleep(8h);
    stage->pass(9s);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty()) << "the network comes later than the clock";
    stage->pass(1min);
    EXPECT_THAT(stage->takeRefreshed(), SizeIs(3)) << "once, however long";
    stage->pass(13min);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty());

    network->become(Connectivity::Metered);
    stage->pass(2h);
    network->become(Connectivity::Absent);
    stage->pass(2h);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty());
    EXPECT_EQ(watch->nextRefresh(), std::nullopt);
    network->become(Connectivity::Unknown);
    EXPECT_THAT(stage->takeRefreshed(), SizeIs(3)) << "at once, and once";
    stage->pass(10min);

    turnOn(5min);
    EXPECT_THAT(stage->takeRefreshed(), SizeIs(3)) << "a shorter interval counts from the same refresh";
    stage->pass(1min);
    WatchSettings settings = watch->settings();
    settings.without = {"two.example"};
    watch->setSettings(settings);
    stage->pass(5min);
    EXPECT_THAT(stage->takeRefreshed(), ElementsAre("one", "three"));

    begin();
    EXPECT_EQ(watch->settings(), settings) << "kept for the next run";
    stage->pass(4min);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty()) << "the start has just read them all";
    settings.on = false;
    watch->setSettings(settings);
    stage->pass(day);
    EXPECT_THAT(stage->takeRefreshed(), IsEmpty());
}

TEST_F(WatchTests, TellsWhatItWasAskedToTell)
{
    turnOn(1min);
    stage->pass(5min);
    EXPECT_THAT(messages->shown, IsEmpty());

    worsen(1, partition, FindingRank::PartitionError);
    worsen(0, system, FindingRank::SystemErrorLit);
    stage->changes.push_back(stage->changes.back()); // its LED as well
    stage->changes.back().kind = ChangeKind::LEDOn;
    stage->changes.push_back(stage->changes.front()); // nothing in Attention: its stop was expected, say
    stage->changes.back().object.identifier = "p2";
    worsen(0, event, FindingRank::OpenEvent, true);
    stage->pass(1min);
    EXPECT_THAT(messages->shown, ElementsAre("news"));
    EXPECT_THAT(namesOfWorse(), ElementsAre("helios", "p1")) << "one a thing, the worst first, no events";
    EXPECT_THAT(news.worseNow, ElementsAre(Field(&Finding::rank, FindingRank::SystemErrorLit),
                                           Field(&Finding::rank, FindingRank::PartitionError)));
    EXPECT_EQ(news.consoles, 2U);

    WatchSettings settings = watch->settings();
    settings.worse = false;
    settings.newEvents = WatchSettings::NewEvents::OpenCallHome;
    watch->setSettings(settings);
    stage->found.list.clear();
    worsen(0, system, FindingRank::SystemError);
    worsen(0, event, FindingRank::OpenEvent, false);
    stage->pass(1min);
    EXPECT_THAT(messages->shown, SizeIs(1));
    settings.newEvents = WatchSettings::NewEvents::Open;
    settings.better = true;
    watch->setSettings(settings);
    stage->isPasscodeRequired = true;
    Change gone;
    gone.kind = ChangeKind::EventGone;
    gone.sense = ChangeSense::Better;
    Change better = gone;
    better.kind = ChangeKind::State;
    better.object = partition;
    Change inErrorStill = better; // though its LED went off, say
    inErrorStill.address = *stage->corvels[0]->address();
    inErrorStill.object = system;
    stage->changes = {gone, better, inErrorStill};
    worsen(0, event, FindingRank::OpenEvent, false);
    stage->pass(1min);
    EXPECT_THAT(messages->shown, ElementsAre("news", "counts"));
    EXPECT_THAT(namesOfWorse(), ElementsAre("1042"));
    EXPECT_THAT(news.better, ElementsAre(better));

    bool opened = false;
    watch->setOpen([&] { opened = true; });
    messages->tapped();
    EXPECT_TRUE(opened);
    watch->sendTestMessage();
    EXPECT_EQ(messages->shown.back(), "test");
}

TEST_F(WatchTests, AConsoleWhoseCertificateChangedIsLeftOutUntilAPersonRefreshesIt)
{
    const CorvelRef console = stage->corvels[1];
    Reading& reading = *stage->readings[console.get()];
    turnOn(1min);
    reading.outcome = Reading::Outcome::Offline;
    reading.error = Error{std::string(urlErrorDomain), -1202, {}, {}, nullptr};
    stage->pass(1min);
    EXPECT_THAT(stage->takeRefreshed(), SizeIs(3));
    EXPECT_THAT(watch->leftOut(), ElementsAre(console));
    stage->pass(10min);
    EXPECT_THAT(stage->takeRefreshed(), Not(testing::Contains("two")));
    begin();
    stage->pass(1min);
    EXPECT_THAT(stage->takeRefreshed(), ElementsAre("one", "three")) << "a start is no refresh by hand";

    watch->didRefreshByHand(*console);
    EXPECT_THAT(watch->leftOut(), SizeIs(1)) << "it failed again";
    reading.outcome = Reading::Outcome::Partial;
    reading.error.reset();
    watch->didRefreshByHand(*console);
    EXPECT_THAT(watch->leftOut(), IsEmpty());
    stage->pass(1min);
    EXPECT_THAT(stage->takeRefreshed(), SizeIs(3));

    reading.feeds[3].error = Error{std::string(urlErrorDomain), -1202, {}, {}, nullptr};
    stage->readBy(3, 1s);
    EXPECT_THAT(watch->leftOut(), SizeIs(1)) << "a pull saw it";
    WatchSettings settings = watch->settings();
    settings.without = {*console->address(), "one.example"};
    watch->setSettings(settings);
    stage->corvels.erase(stage->corvels.begin() + 1);
    consolesChanged();
    for (const auto& [name, text] : stage->settings) {
        EXPECT_THAT(text, Not(testing::HasSubstr("two.example"))) << name;
    }
    EXPECT_EQ(watch->settings().without.size(), 1U);
    stage->corvels.clear();
    stage->settings.clear(); // as the reset does
    consolesChanged();
    EXPECT_EQ(watch->settings(), WatchSettings());
    EXPECT_THAT(stage->settings, IsEmpty());
}

TEST_F(WatchTests, AYearEveryMinuteKeepsNothing)
{
    const int days = rounds(30, 365);
    stage->corvels.resize(1);
    turnOn(1min);
    const int written = stage->written;
    std::size_t refreshes = 0;
    std::size_t mostTimers = 0;
    for (int passed = 0; passed < days; ++passed) {
        worsen(0, system, FindingRank::SystemError);
        stage->pass(day);
        refreshes += stage->takeRefreshed().size();
        mostTimers = std::max(mostTimers, stage->timers.size());
        stage->found.list.clear();
    }
    EXPECT_EQ(refreshes, static_cast<std::size_t>(days) * 24 * 60);
    EXPECT_LE(mostTimers, 4U);
    EXPECT_EQ(messages->shown.size(), static_cast<std::size_t>(days));
    EXPECT_EQ(stage->written, written);
}

} // namespace
} // namespace lodestar::test

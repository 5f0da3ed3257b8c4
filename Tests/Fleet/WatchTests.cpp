// SPDX-License-Identifier: Apache-2.0
// The watch over a fleet and clocks that the tests move.
#include "Fleet/Watch.h"
#include "Fleet/WatchSurroundings.h"
#include "Inventory/Feed.h"
#include "Platform/NetworkState.h"
#include "Platform/NotificationCenter.h"
#include "Tests/Support/LongRun.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <utility>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using Connectivity = NetworkState::Connectivity;

constexpr auto day = 24h;

class FakeNetwork final : public NetworkState
{
public:
    Connectivity connectivity() const override { return m_connectivity; }
    void setChanged(std::function<void()> changed) override { m_changed = std::move(changed); }
    void become(Connectivity connectivity)
    {
        m_connectivity = connectivity;
        m_changed();
    }

private:
    Connectivity m_connectivity = Connectivity::Free;
    std::function<void()> m_changed;
};

class FakeMessages final : public MessageService
{
public:
    bool isAvailable() const override { return true; }
    void show(const Message& message) override { shown.push_back(message.summary); }
    void setTapped(std::function<void()> function) override { tapped = std::move(function); }
    void setAvailabilityChanged(std::function<void()> /*changed*/) override {}
    std::vector<std::string> shown;
    std::function<void()> tapped;
};

class FakeSurroundings final : public WatchSurroundings
{
public:
    FakeSurroundings()
    {
        for (const char* const name : {"one", "two", "three"}) {
            auto corvel = std::make_shared<Corvel>();
            corvel->setName(name);
            corvel->setAddress(std::string(name) + ".example");
            corvels.push_back(corvel);
            readings[corvel.get()] = std::make_shared<Reading>();
            readings[corvel.get()]->outcome = Reading::Outcome::Complete;
        }
    }

    WatchSchedule::Moment now() const override { return WatchSchedule::Moment(passed); }
    /// Begins at midnight of a day that is the same everywhere.
    WallTime wallNow() const override { return WallTime(20'000 * day + passed); }
    std::chrono::minutes sinceMidnight(WallTime time) const override
    {
        return std::chrono::floor<std::chrono::minutes>(time.time_since_epoch() % day);
    }
    void later(std::chrono::milliseconds delay, std::function<void()> function) override
    {
        timers.emplace(passed + delay, std::move(function));
    }
    std::vector<CorvelRef> consoles() const override { return corvels; }
    FleetReading fleet() const override { return reading; }
    std::shared_ptr<const Reading> readingOf(const Corvel& corvel) const override { return readings.at(&corvel); }
    void refresh(const CorvelRef& corvel, std::function<void()> ended) override
    {
        refreshed.push_back(*corvel->name());
        EXPECT_EQ(reading.updating, 0U) << "somebody else reads";
        later(refreshTakes, std::move(ended));
    }
    void beginCollecting() override { EXPECT_FALSE(std::exchange(isCollecting, true)); }
    void endCollecting(std::function<void(std::vector<Change>)> then) override
    {
        isCollecting = false;
        then(std::exchange(changes, {}));
    }
    void findings(std::function<void(Findings)> then) override { then(found); }
    std::optional<std::string> setting(const std::string& name) const override
    {
        const auto value = settings.find(name);
        return value != settings.end() ? std::optional(value->second) : std::nullopt;
    }
    void setSetting(const std::string& name, std::optional<std::string> value) override
    {
        ++written;
        settings.erase(name);
        if (value) {
            settings.emplace(name, std::move(*value));
        }
    }
    bool requiresPasscode() const override { return isPasscodeRequired; }

    void pass(std::chrono::milliseconds time)
    {
        const auto end = passed + time;
        while (!timers.empty() && timers.begin()->first <= end) {
            const auto next = timers.extract(timers.begin());
            passed = std::max(passed, next.key());
            next.mapped()();
        }
        passed = end;
    }
    /// Timers stand still while the device sleeps.
    void sleep(std::chrono::milliseconds time)
    {
        passed += time;
        std::multimap<std::chrono::milliseconds, std::function<void()>> moved;
        for (auto& [moment, function] : timers) {
            moved.emplace(moment + time, std::move(function));
        }
        timers = std::move(moved);
    }
    void readBy(std::size_t count, std::chrono::milliseconds time)
    {
        reading.updating = reading.underWay = count;
        NotificationCenter::defaultCenter().postNotification("ReadingsDidChange");
        pass(time);
        reading.updating = reading.underWay = 0;
        NotificationCenter::defaultCenter().postNotification("ReadingsDidChange");
    }
    std::vector<std::string> takeRefreshed() { return std::exchange(refreshed, {}); }

    std::chrono::milliseconds passed{};
    std::multimap<std::chrono::milliseconds, std::function<void()>> timers;
    std::vector<CorvelRef> corvels;
    std::map<const Corvel*, std::shared_ptr<Reading>> readings;
    FleetReading reading;
    std::vector<std::string> refreshed;
    std::chrono::milliseconds refreshTakes{};
    std::vector<Change> changes;
    Findings found;
    std::map<std::string, std::string> settings;
    int written = 0;
    bool isPasscodeRequired = false;
    bool isCollecting = false;
};

class WatchTests : public testing::Test
{
protected:
    WatchTests()
    {
        auto service = std::make_unique<FakeMessages>();
        messages = service.get();
        MessageService::install(std::move(service));
        auto state = std::make_unique<FakeNetwork>();
        network = state.get();
        NetworkState::install(std::move(state));
        begin();
    }
    ~WatchTests() override
    {
        watch.reset();
        MessageService::install(nullptr);
        NetworkState::install(nullptr);
    }

    void begin()
    {
        watch = std::make_unique<Watch>(stage);
        watch->setWords(
            [this](const WatchNews& given, bool counts) {
                news = given;
                return Message{counts ? "counts" : given.ofTheNight ? "night" : "news", {}};
            },
            [] {
                return Message{"test", {}};
            });
        watch->start();
    }
    void turnOn(std::chrono::minutes every)
    {
        WatchSettings settings = watch->settings();
        settings.on = true;
        settings.every = every;
        watch->setSettings(settings);
    }
    /// Makes something worse that is found at the next refresh.
    void worsen(std::size_t console, const ObjectKey& object, FindingRank rank, bool callsHome = false)
    {
        const CorvelRef& corvel = stage->corvels[console];
        Change change;
        change.kind = rank == FindingRank::OpenEvent ? ChangeKind::EventOpened : ChangeKind::State;
        change.sense = ChangeSense::Worse;
        change.address = *corvel->address();
        change.object = object;
        change.name = object.identifier;
        stage->changes.push_back(change);
        Finding finding;
        finding.rank = rank;
        finding.corvel = corvel;
        finding.object = object;
        finding.callsHome = callsHome;
        stage->found.list.push_back(finding);
    }
    static void consolesChanged() { NotificationCenter::defaultCenter().postNotification("CorvelsDidChange"); }
    std::vector<std::string> namesOfWorse() const
    {
        std::vector<std::string> names;
        for (const Change& change : news.worse) {
            names.push_back(change.name);
        }
        return names;
    }

    const std::shared_ptr<FakeSurroundings> stage = std::make_shared<FakeSurroundings>();
    FakeMessages* messages = nullptr;
    FakeNetwork* network = nullptr;
    WatchNews news;
    std::unique_ptr<Watch> watch;
    const ObjectKey system{std::string(ObjectType::ManagedSystem), "helios"};
    const ObjectKey partition{std::string(ObjectType::LogicalPartition), "p1"};
    const ObjectKey event{std::string(ObjectType::ServiceableEvent), "1042"};
};

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

TEST_F(WatchTests, QuietHoursEndInOneSum)
{
    WatchSettings settings = watch->settings();
    settings.quiet = true;
    watch->setSettings(settings);
    stage->refreshTakes = 10s;
    turnOn(15min);
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

    const auto passUntil = [this](std::chrono::minutes time) {
        stage->pass((time - std::chrono::milliseconds(stage->passed % day) + day) % day);
    };
    passUntil(23h);
    worsen(1, partition, FindingRank::PartitionError);
    passUntil(6h + 10min);
    stage->refreshTakes = 1h;
    worsen(0, system, FindingRank::SystemError);
    passUntil(8h);
    EXPECT_THAT(messages->shown, ElementsAre("night", "news", "night")) << "the night ended during a refresh";
    EXPECT_EQ(news.worse.size(), 2U);
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
} // namespace lodestar

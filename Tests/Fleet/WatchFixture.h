// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Watch.h"
#include "Fleet/WatchSurroundings.h"
#include "Inventory/Feed.h"
#include "Platform/NetworkState.h"
#include "Platform/NotificationCenter.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace lodestar::test
{

using namespace std::chrono_literals;

constexpr auto day = 24h;

class FakeNetwork final : public NetworkState
{
public:
    NetworkState::Connectivity connectivity() const override { return m_connectivity; }
    void setChanged(std::function<void()> changed) override { m_changed = std::move(changed); }
    void become(NetworkState::Connectivity connectivity)
    {
        m_connectivity = connectivity;
        m_changed();
    }

private:
    NetworkState::Connectivity m_connectivity = NetworkState::Connectivity::Free;
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

/// The watch over a fleet and clocks that the tests move.
class WatchFixture : public testing::Test
{
protected:
    WatchFixture()
    {
        auto service = std::make_unique<FakeMessages>();
        messages = service.get();
        MessageService::install(std::move(service));
        auto state = std::make_unique<FakeNetwork>();
        network = state.get();
        NetworkState::install(std::move(state));
        begin();
    }
    ~WatchFixture() override
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
    void passUntil(std::chrono::minutes time) const
    {
        stage->pass((time - std::chrono::milliseconds(stage->passed % day) + day) % day);
    }
    /// Makes something worse that is found at the next refresh.
    void worsen(std::size_t console, const ObjectKey& object, FindingRank rank, bool callsHome = false)
    {
        const CorvelRef& corvel = stage->corvels[console];
        Change change;
        change.kind = rank == FindingRank::OpenEvent ? ChangeKind::EventOpened : ChangeKind::State;
        change.sense = ChangeSense::Worse;
        change.seen = stage->wallNow();
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

} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Watch.h"

#include "Fleet/WatchLeftOut.h"
#include "Fleet/WatchNews.h"
#include "Fleet/WatchSettingName.h"
#include "Fleet/WatchSurroundings.h"
#include "Fleet/WatchVoice.h"
#include "Platform/NetworkState.h"
#include "Platform/NotificationCenter.h"

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::chrono::hours oldWithoutWatch{1};

bool isNetworkFree()
{
    const NetworkState::Connectivity connectivity = NetworkState::standard().connectivity();
    return connectivity == NetworkState::Connectivity::Free || connectivity == NetworkState::Connectivity::Unknown;
}

std::string addressOf(const Corvel& corvel)
{
    return corvel.address().value_or("");
}

} // namespace

struct Watch::State : std::enable_shared_from_this<State> {
    explicit State(std::shared_ptr<WatchSurroundings> stage)
        : m_stage(std::move(stage)), m_voice(m_stage), m_leftOut(m_stage)
    {
    }

    void start();
    void stop();
    void set(WatchSettings settings);
    void keepSettings() { m_stage->setSetting(watchSettingName, m_settings.text()); }
    void tick();
    void tickIn(std::chrono::milliseconds delay);
    std::chrono::milliseconds untilNextTick() const;
    std::optional<WatchSchedule::Moment> due() const;
    bool isQuiet() const { return m_settings.isQuietAt(m_stage->sinceMidnight(m_stage->wallNow())); }

    std::vector<CorvelRef> watched() const;
    void beginRefresh(const std::vector<CorvelRef>& corvels);
    void endRefresh();
    void fleetWasRead();
    void tell(const std::vector<Change>& changes, const Findings& findings);
    void tellNight();
    bool isFleetKnown() const;
    std::chrono::seconds reading() const;
    void readingsDidChange();
    void consolesDidChange();

    const std::shared_ptr<WatchSurroundings> m_stage;
    WatchSettings m_settings;
    WatchSchedule m_schedule;
    WatchVoice m_voice;
    WatchLeftOut m_leftOut;
    std::function<void()> m_open;
    std::vector<NotificationCenter::Observation> m_observations;
    int m_tick = 0;                           ///< a tick that was put off by a later one does nothing
    bool m_isRunning = false;                 ///< between `start` and `stop`
    bool m_isRefreshing = false;              ///< until its news are told
    WatchSchedule::Moment m_began;            ///< the refresh under way, also a pull's
    WatchSchedule::Moment::duration m_took{}; ///< the last refresh of the whole fleet
    std::size_t m_underWay = 0;               ///< consoles of the own refresh that have not ended
    std::size_t m_othersUnderWay = 0;         ///< the most consoles of a refresh by hand that is under way
};

void Watch::State::start()
{
    m_settings = WatchSettings::ofText(m_stage->setting(watchSettingName).value_or(""));
    m_leftOut.read();
    m_voice.readNight();
    const auto changed = [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            NotificationCenter::defaultCenter().postNotification("WatchDidChange");
            self->tick();
        }
    };
    const auto observe = [this](const char* name, void (State::*function)()) {
        m_observations.push_back(
            NotificationCenter::defaultCenter().addObserver(name, [weak = weak_from_this(), function] {
                if (const auto self = weak.lock()) {
                    (*self.*function)();
                }
            }));
    };
    observe("ReadingsDidChange", &State::readingsDidChange);
    observe("CorvelsDidChange", &State::consolesDidChange);
    observe("CorvelAdded", &State::consolesDidChange);
    NetworkState::standard().setChanged(changed);
    MessageService::standard().setAvailabilityChanged(changed);
    MessageService::standard().setTapped([weak = weak_from_this()] {
        if (const auto self = weak.lock(); self && self->m_open) {
            self->m_open();
        }
    });
    m_isRunning = true;
    set(m_settings);
}

void Watch::State::stop()
{
    m_isRunning = false;
    m_observations.clear();
    m_schedule.setInterval(std::nullopt, m_stage->now());
    ++m_tick;
}

void Watch::State::set(WatchSettings settings)
{
    m_settings = std::move(settings);
    if (m_isRunning) {
        m_schedule.setInterval(m_settings.on ? std::optional(m_settings.every) : std::nullopt, m_stage->now());
    }
    if (!m_settings.on) {
        m_voice.clearNight();
    }
    NotificationCenter::defaultCenter().postNotification("WatchDidChange");
    tick();
}

std::optional<WatchSchedule::Moment> Watch::State::due() const
{
    return m_isRefreshing || !isNetworkFree() ? std::nullopt : m_schedule.due();
}

void Watch::State::tick()
{
    if (!m_isRunning || !m_settings.on) {
        return;
    }
    m_schedule.notice(m_stage->now());
    if (!m_isRefreshing && m_voice.hasNight() && !isQuiet() && isFleetKnown()) {
        tellNight();
    }
    if (const auto moment = due(); moment && *moment <= m_stage->now() && m_stage->fleet().updating == 0) {
        beginRefresh(watched());
    }
    tickIn(untilNextTick());
}

void Watch::State::tickIn(std::chrono::milliseconds delay)
{
    m_stage->later(delay, [weak = weak_from_this(), tick = ++m_tick] {
        if (const auto self = weak.lock(); self && self->m_tick == tick) {
            self->tick();
        }
    });
}

std::chrono::milliseconds Watch::State::untilNextTick() const
{
    using std::chrono::milliseconds;
    milliseconds wait = WatchSchedule::step;
    if (const auto moment = due()) {
        // What is due already waits for somebody else's refresh, whose end is told.
        const auto left = std::chrono::ceil<milliseconds>(*moment - m_stage->now());
        wait = left.count() > 0 ? std::min(wait, left) : wait;
    }
    if (m_voice.hasNight()) {
        // Quiet hours begin and end with a minute of the wall clock.
        const auto minute = m_stage->wallNow().time_since_epoch() % std::chrono::minutes(1);
        wait = std::min(wait, std::chrono::ceil<milliseconds>(std::chrono::minutes(1) - minute));
    }
    return wait;
}

std::vector<CorvelRef> Watch::State::watched() const
{
    std::vector<CorvelRef> corvels = m_stage->consoles();
    std::erase_if(corvels, [this](const CorvelRef& corvel) {
        const std::string address = addressOf(*corvel);
        return m_settings.without.contains(address) || m_leftOut.contains(address);
    });
    return corvels;
}

void Watch::State::beginRefresh(const std::vector<CorvelRef>& corvels)
{
    m_schedule.fleetWasRead(m_stage->now());
    if (corvels.empty()) {
        return;
    }
    m_isRefreshing = true;
    m_began = m_stage->now();
    m_underWay = corvels.size();
    m_stage->beginCollecting();
    for (const CorvelRef& corvel : corvels) {
        m_stage->refresh(corvel, [weak = weak_from_this()] {
            if (const auto self = weak.lock(); self && --self->m_underWay == 0) {
                self->endRefresh();
            }
        });
    }
    NotificationCenter::defaultCenter().postNotification("WatchDidChange");
}

void Watch::State::fleetWasRead()
{
    m_took = m_stage->now() - m_began;
    m_schedule.fleetWasRead(m_stage->now());
}

void Watch::State::endRefresh()
{
    fleetWasRead();
    m_leftOut.notice();
    m_stage->endCollecting([weak = weak_from_this()](std::vector<Change> changes) {
        const auto self = weak.lock();
        if (!self) {
            return;
        }
        if (changes.empty() && !self->m_voice.hasNight()) {
            self->tell({}, {});
            return;
        }
        self->m_stage->findings([weak, changes = std::move(changes)](const Findings& findings) {
            if (const auto watch = weak.lock()) {
                watch->tell(changes, findings);
            }
        });
    });
}

void Watch::State::tell(const std::vector<Change>& changes, const Findings& findings)
{
    m_isRefreshing = false;
    const WatchNews news = m_settings.on ? newsOf(changes, findings, m_settings) : WatchNews();
    m_voice.tell(news, findings, isQuiet());
    NotificationCenter::defaultCenter().postNotification("WatchDidRefresh");
    NotificationCenter::defaultCenter().postNotification("WatchDidChange");
    readingsDidChange(); // somebody else's refresh may have begun meanwhile
    tick();
}

void Watch::State::tellNight()
{
    m_stage->findings([weak = weak_from_this()](const Findings& findings) {
        if (const auto self = weak.lock()) {
            self->m_voice.tellNight(findings);
        }
    });
}

/// A night of the run before says how much of it is still so, and that is not known before the start has read them all.
bool Watch::State::isFleetKnown() const
{
    const FleetReading fleet = m_stage->fleet();
    return fleet.updating == 0 && fleet.notTried == 0;
}

/// Between the first console of the last refresh and the last one of the next, beyond the interval.
std::chrono::seconds Watch::State::reading() const
{
    const bool isReading = m_isRefreshing || m_othersUnderWay > 0;
    const WatchSchedule::Moment::duration now =
        isReading ? m_stage->now() - m_began : WatchSchedule::Moment::duration();
    return std::chrono::ceil<std::chrono::seconds>(m_took + now) + std::chrono::seconds(1);
}

void Watch::State::readingsDidChange()
{
    if (m_isRefreshing) {
        return;
    }
    const FleetReading fleet = m_stage->fleet();
    if (fleet.updating > 0) {
        if (m_othersUnderWay == 0) {
            m_began = m_stage->now();
        }
        m_othersUnderWay = std::max(m_othersUnderWay, fleet.underWay);
    } else if (const std::size_t ended = std::exchange(m_othersUnderWay, 0); ended > 0) {
        m_leftOut.notice();
        // A pull reads them all; a refresh of one console leaves the others as old as they were.
        if (ended >= watched().size()) {
            fleetWasRead();
            NotificationCenter::defaultCenter().postNotification("WatchDidChange");
        }
        tick();
    }
}

void Watch::State::consolesDidChange()
{
    const auto kept = m_stage->setting(watchSettingName);
    if (!kept && m_settings != WatchSettings()) {
        set({}); // the reset removed the history
    }
    std::set<std::string> registered;
    for (const CorvelRef& corvel : m_stage->consoles()) {
        registered.insert(addressOf(*corvel));
    }
    m_leftOut.keepOnly(registered);
    m_voice.keepOnly(registered);
    WatchSettings settings = m_settings;
    if (std::erase_if(settings.without, [&](const auto& address) { return !registered.contains(address); }) > 0) {
        set(std::move(settings));
        keepSettings();
    } else {
        NotificationCenter::defaultCenter().postNotification("WatchDidChange"); // there are more or fewer to watch
    }
}

Watch& Watch::shared()
{
    static auto& watch = *new Watch(WatchSurroundings::ofProcess());
    return watch;
}

Watch::Watch(std::shared_ptr<WatchSurroundings> surroundings)
    : m_state(std::make_shared<State>(std::move(surroundings)))
{
}

Watch::~Watch()
{
    stop();
}

const WatchSettings& Watch::settings() const
{
    return m_state->m_settings;
}

void Watch::setSettings(WatchSettings settings)
{
    if (settings != m_state->m_settings) {
        m_state->set(std::move(settings));
        m_state->keepSettings();
    }
}

std::chrono::seconds Watch::oldAge() const
{
    return settings().on ? settings().every + m_state->reading() : oldWithoutWatch;
}

std::optional<WallTime> Watch::nextRefresh() const
{
    const auto due = m_state->due();
    if (!due) {
        return std::nullopt;
    }
    const auto left = std::max(*due - m_state->m_stage->now(), WatchSchedule::Moment::duration());
    return m_state->m_stage->wallNow() + std::chrono::duration_cast<WallTime::duration>(left);
}

std::vector<CorvelRef> Watch::leftOut() const
{
    return m_state->m_leftOut.consoles();
}

void Watch::didRefreshByHand(const Corvel& corvel)
{
    m_state->m_leftOut.didRefreshByHand(corvel);
}

bool Watch::showsMessages() const
{
    return MessageService::standard().isAvailable();
}

void Watch::sendTestMessage()
{
    m_state->m_voice.sendTest();
}

void Watch::setWords(Words words, TestWords testWords)
{
    m_state->m_voice.setWords(std::move(words), std::move(testWords));
}

void Watch::setOpen(std::function<void()> open)
{
    m_state->m_open = std::move(open);
}

void Watch::start()
{
    m_state->start();
}

void Watch::stop()
{
    m_state->stop();
}

} // namespace lodestar

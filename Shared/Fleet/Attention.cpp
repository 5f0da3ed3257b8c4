// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Attention.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/History.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::size_t largeReading = 1000; // consoles
constexpr auto pauseOfLargeReading = 1s;
constexpr auto pauseOfReading = 250ms;
constexpr int timesItsOwn = 20; ///< a pause is at least so many times as long as the making of the picture before

/// The findings that stay while their consoles are read again.
Findings keptFindings(const Findings& before, const std::vector<ConsoleSnapshot>& consoles)
{
    std::unordered_map<const Corvel*, const ConsoleMemory*> memories;
    for (const ConsoleSnapshot& console : consoles) {
        memories.emplace(console.corvel.get(), console.memory.get());
    }
    Findings kept;
    kept.beforeOffline = before.beforeOffline;
    std::ranges::copy_if(before.list, std::back_inserter(kept.list), [&memories](const Finding& finding) {
        const auto console = memories.find(finding.corvel.get());
        if (console == memories.end() || console->second == nullptr || finding.rank != FindingRank::Stopped) {
            return console != memories.end();
        }
        const auto known = console->second->objects.find(finding.object);
        return known == console->second->objects.end() || !known->second.stopExpected;
    });
    kept.openEvents = static_cast<std::size_t>(std::ranges::count(kept.list, FindingRank::OpenEvent, &Finding::rank));
    kept.needAttention = kept.list.size() - kept.openEvents;
    return kept;
}

} // namespace

struct Attention::State {
    /// How long to wait for the next picture.
    Clock::duration pause(const FleetReading& fleet) const
    {
        if (fleet.underWay == 0) {
            return Clock::duration(0);
        }
        const auto least = fleet.underWay > largeReading ? pauseOfLargeReading : pauseOfReading;
        return began + std::max<Clock::duration>(least, timesItsOwn * took) - Clock::now();
    }

    const DispatchQueue queue{"lodestar.attention", DispatchQueue::Kind::Serial};
    std::vector<NotificationCenter::Observation> observations;
    bool isAsked = false;
    bool isMaking = false;
    bool isAskedAgain = false; ///< while a picture is made
    bool isAdopted = false;
    bool hasRows = false; ///< something needed attention when the last reading had ended
    Clock::time_point began;
    Clock::duration took{}; ///< the last picture's making
};

ConsoleSnapshot snapshotOf(const CorvelRef& corvel)
{
    std::string address = corvel->address().value_or("");
    auto memory = History::shared().memoryOf(address);
    return {corvel,
            corvel->name().value_or(""),
            std::move(address),
            Readings::shared().of(*corvel),
            corvel->restData(),
            std::move(memory)};
}

Attention& Attention::shared()
{
    // Never destroyed: a picture may still be made while the process ends.
    static Attention* const attention = new Attention;
    return *attention;
}

Attention::Attention() : m_picture(std::make_shared<const Picture>()), m_state(std::make_unique<State>())
{
    for (const char* const name : {"ReadingsDidChange", "HistoryDidChange", "CorvelsDidChange", "CorvelAdded"}) {
        m_state->observations.push_back(NotificationCenter::defaultCenter().addObserver(name, [this] { update(); }));
    }
    update();
}

void Attention::update()
{
    State& state = *m_state;
    if (state.isMaking) {
        state.isAskedAgain = true;
    } else if (!state.isAdopted && !std::exchange(state.isAsked, true)) {
        MainQueue::shared().async([this] { makeWhenDue(); });
    }
}

void Attention::makeWhenDue()
{
    if (!m_state->isAsked || m_state->isMaking) {
        return;
    }
    const FleetReading fleet = Readings::shared().ofFleet();
    const auto pause = std::chrono::ceil<std::chrono::milliseconds>(m_state->pause(fleet));
    if (pause > 0ms) {
        // A reading's last picture does not wait for the end of a long pause.
        MainQueue::shared().asyncAfter(std::min<std::chrono::milliseconds>(pause, pauseOfReading),
                                       [this] { makeWhenDue(); });
    } else {
        make(fleet);
    }
}

void Attention::make(const FleetReading& fleet)
{
    State& state = *m_state;
    state.isAsked = false;
    state.isMaking = true;
    state.began = Clock::now();
    const bool keeps = fleet.underWay > 0 && state.hasRows;
    state.queue.async([this, before = keeps ? m_picture : nullptr, fleet,
                       list = RESTHandler::sharedInstance().corvelListSnapshot(),
                       now = std::chrono::system_clock::now()] {
        const Clock::time_point began = Clock::now();
        auto picture = std::make_shared<Picture>();
        picture->consoles.reserve(list->size());
        std::ranges::transform(*list, std::back_inserter(picture->consoles), snapshotOf);
        picture->findings =
            before != nullptr ? keptFindings(before->findings, picture->consoles) : findingsOf(picture->consoles, now);
        picture->fleet = fleet;
        picture->made = now;
        MainQueue::shared().async([this, picture, took = Clock::now() - began] {
            m_state->took = took;
            m_state->isMaking = false;
            if (!m_state->isAdopted) {
                const FleetReading& of = picture->fleet;
                if (of.underWay == 0) {
                    m_state->hasRows = picture->findings.needAttention > 0;
                }
                show(picture);
            }
            if (std::exchange(m_state->isAskedAgain, false)) {
                update();
            }
        });
    });
}

void Attention::show(std::shared_ptr<const Picture> picture)
{
    release(std::exchange(m_picture, std::move(picture)));
    NotificationCenter::defaultCenter().postNotification("AttentionDidChange");
}

void Attention::release(std::shared_ptr<const Picture> picture)
{
    shared().m_state->queue.async([picture = std::move(picture)] {});
}

void Attention::adopt(std::shared_ptr<const Picture> picture)
{
    m_state->isAdopted = picture != nullptr;
    m_state->isAsked = false;
    m_state->hasRows = false;
    if (picture != nullptr) {
        show(std::move(picture));
    } else {
        update();
    }
}

} // namespace lodestar

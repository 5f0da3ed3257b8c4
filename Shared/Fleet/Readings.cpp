// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Readings.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/FailedLookUps.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace lodestar
{

namespace
{

/// The last certificate that a console showed; an attempt that met none does not change it.
struct KnownCertificate {
    ServerTrust::Fingerprint fingerprint{};
    WallTime since;
};

const std::shared_ptr<const Reading>& neverTried()
{
    static const std::shared_ptr<const Reading> reading = [] {
        Reading none;
        for (std::size_t i = 0; i < feedTable.size(); ++i) {
            none.feeds[i].type = feedTable[i].type;
        }
        for (std::size_t i = 0; i < stageCount; ++i) {
            none.stages[i].kind = static_cast<StageKind>(i);
        }
        return std::make_shared<const Reading>(std::move(none));
    }();
    return reading;
}

void takeLastComplete(Reading& reading, const Reading& before)
{
    if (!reading.lastComplete) {
        reading.lastComplete = before.lastComplete;
        reading.lastCompleteDuration = before.lastCompleteDuration;
        reading.versionThen = before.versionThen;
    }
}

void takeOver(Reading& reading, const Reading& before)
{
    takeLastComplete(reading, before);
    if (reading.outcome == Reading::Outcome::Offline) {
        reading.offlineSince = before.offlineSince.value_or(reading.ended);
    }
    for (std::size_t i = 0; i < reading.feeds.size(); ++i) {
        if (!reading.feeds[i].readAt) {
            reading.feeds[i].readAt = before.feeds[i].readAt;
        }
    }
}

void compare(CertificateReading& reading, WallTime ended, std::optional<KnownCertificate>& known)
{
    const ServerTrust::Fingerprint& shown = reading.shown.fingerprint;
    if (reading.atSessionCheck && known && known->fingerprint == reading.atSessionCheck->fingerprint) {
        reading.atSessionCheckSince = known->since;
    }
    if (known && known->fingerprint == shown && !reading.atSessionCheck) {
        reading.compared = CertificateChange::Unchanged;
        reading.since = known->since;
        return;
    }
    if (known || reading.atSessionCheck) {
        reading.compared = CertificateChange::Changed;
        reading.since = ended;
    }
    known = KnownCertificate{shown, ended};
}

std::optional<std::size_t> indexOf(std::string_view type)
{
    const auto* const row = std::ranges::find(feedTable, type, &FeedKind::type);
    return row != feedTable.end() ? std::optional<std::size_t>(row - feedTable.begin()) : std::nullopt;
}

Reading::Outcome outcomeOfFeeds(const Reading& reading)
{
    return reading.missingFeeds().empty() ? Reading::Outcome::Complete : Reading::Outcome::Partial;
}

void count(FleetReading& fleet, const Reading& reading)
{
    switch (reading.outcome) {
    case Reading::Outcome::NotTried:
        ++fleet.notTried;
        return;
    case Reading::Outcome::Offline:
        ++fleet.offline;
        return;
    case Reading::Outcome::Complete:
        ++fleet.answeredInFull;
        break;
    case Reading::Outcome::Partial:
        ++fleet.incomplete;
        break;
    }
    fleet.from = std::min(fleet.from.value_or(reading.ended), reading.ended);
    fleet.until = std::max(fleet.until.value_or(reading.ended), reading.ended);
}

} // namespace

struct Readings::State {
    struct Entry {
        std::weak_ptr<Corvel> corvel; ///< tells a record from a later one in the same place
        std::shared_ptr<const Reading> reading = neverTried();
        std::optional<KnownCertificate> certificate;
        std::array<FailedLookUps, feedTable.size()> failedLookUps;
        int underWay = 0;
        bool isOfPresentRefreshes = false; ///< since there was last none under way
    };

    mutable std::mutex mutex;
    std::unordered_map<const Corvel*, Entry> entries;
    int underWay = 0;
    bool willPost = false;

    Entry& entryOf(const CorvelRef& corvel)
    {
        Entry& entry = entries[corvel.get()];
        if (entry.corvel.expired()) {
            underWay -= entry.underWay;
            entry = {};
            entry.corvel = corvel;
        }
        return entry;
    }

    Entry* find(const Corvel& corvel)
    {
        const auto found = entries.find(&corvel);
        return found != entries.end() && !found->second.corvel.expired() ? &found->second : nullptr;
    }

    /// Publishes a reading with another feed.
    static void publish(Entry& entry, std::size_t index, FeedReading feed)
    {
        Reading reading = *entry.reading;
        reading.feeds[index] = std::move(feed);
        if (reading.outcome == Reading::Outcome::Complete || reading.outcome == Reading::Outcome::Partial) {
            reading.outcome = outcomeOfFeeds(reading);
        }
        publish(entry, std::move(reading));
    }

    static void publish(Entry& entry, Reading reading)
    {
        reading.isUpdating = entry.underWay > 0;
        entry.reading = std::make_shared<const Reading>(std::move(reading));
    }

    void settleWhenIdle()
    {
        if (underWay > 0) {
            return;
        }
        std::erase_if(entries, [](const auto& entry) { return entry.second.corvel.expired(); });
        for (auto& [corvel, entry] : entries) {
            entry.isOfPresentRefreshes = false;
        }
    }

    void remove(const Corvel& corvel)
    {
        const auto found = entries.find(&corvel);
        if (found != entries.end()) {
            underWay -= found->second.underWay;
            entries.erase(found);
            settleWhenIdle();
        }
    }

    /// With the lock held.
    void didChange()
    {
        if (std::exchange(willPost, true)) {
            return;
        }
        MainQueue::shared().async([this] {
            {
                const std::lock_guard lock(mutex);
                willPost = false;
            }
            NotificationCenter::defaultCenter().postNotification("ReadingsDidChange");
        });
    }
};

Readings::Readings() : m_state(std::make_unique<State>()) {}

Readings& Readings::shared()
{
    // Never destroyed: refreshes may still end while the process does.
    static Readings* const readings = new Readings;
    return *readings;
}

std::shared_ptr<const Reading> Readings::of(const Corvel& corvel) const
{
    const std::lock_guard lock(m_state->mutex);
    const State::Entry* const entry = m_state->find(corvel);
    return entry != nullptr ? entry->reading : neverTried();
}

FleetReading Readings::ofFleet() const
{
    const auto corvels = RESTHandler::sharedInstance().corvelListSnapshot();
    FleetReading fleet;
    fleet.consoles = corvels->size();
    const std::lock_guard lock(m_state->mutex);
    for (const CorvelRef& corvel : *corvels) {
        const State::Entry* const entry = m_state->find(*corvel);
        count(fleet, entry != nullptr ? *entry->reading : *neverTried());
        if (entry != nullptr && entry->isOfPresentRefreshes) {
            ++fleet.underWay;
            fleet.updating += entry->underWay > 0 ? 1U : 0U;
        }
    }
    // What is under way may all belong to a console that is only being added.
    if (fleet.updating == 0) {
        fleet.underWay = 0;
    }
    return fleet;
}

void Readings::begin(const CorvelRef& corvel)
{
    const std::lock_guard lock(m_state->mutex);
    State::Entry& entry = m_state->entryOf(corvel);
    ++entry.underWay;
    ++m_state->underWay;
    entry.isOfPresentRefreshes = true;
    State::publish(entry, *entry.reading);
    m_state->didChange();
}

void Readings::end(const CorvelRef& corvel, Reading reading)
{
    const std::lock_guard lock(m_state->mutex);
    State::Entry& entry = m_state->entryOf(corvel);
    if (entry.underWay > 0) {
        --entry.underWay;
        --m_state->underWay;
    }
    takeOver(reading, *entry.reading);
    if (reading.certificate) {
        compare(*reading.certificate, reading.ended, entry.certificate);
    }
    entry.failedLookUps = {};
    State::publish(entry, std::move(reading));
    m_state->settleWhenIdle();
    m_state->didChange();
}

void Readings::addFeed(const CorvelRef& corvel, FeedReading feed)
{
    const std::lock_guard lock(m_state->mutex);
    const auto index = indexOf(feed.type);
    if (!index) {
        return;
    }
    State::Entry& entry = m_state->entryOf(corvel);
    if (!feed.readAt) {
        feed.readAt = entry.reading->feeds[*index].readAt;
    }
    entry.failedLookUps[*index] = {};
    State::publish(entry, *index, std::move(feed));
    m_state->didChange();
}

void Readings::addLookUp(const CorvelRef& corvel, const std::string& link, const FeedReading& lookUp)
{
    const std::lock_guard lock(m_state->mutex);
    const auto index = indexOf(lookUp.type);
    State::Entry* const entry = lookUp.error ? &m_state->entryOf(corvel) : m_state->find(*corvel);
    if (!index || entry == nullptr) {
        return;
    }
    auto becomes = entry->failedLookUps[*index].add(link, lookUp, entry->reading->feeds[*index]);
    if (becomes) {
        State::publish(*entry, *index, *std::move(becomes));
        m_state->didChange();
    }
}

void Readings::addMember(const CorvelRef& corvel, const std::string& identity, bool isInError)
{
    const std::lock_guard lock(m_state->mutex);
    State::Entry* const entry = isInError ? &m_state->entryOf(corvel) : m_state->find(*corvel);
    if (entry == nullptr || identity.empty()) {
        return;
    }
    const auto& known = entry->reading->membersInError;
    if (isInError == (known != nullptr && known->contains(identity))) {
        return;
    }
    Reading reading = *entry->reading;
    auto members = known != nullptr ? std::make_shared<std::map<std::string, WallTime>>(*known)
                                    : std::make_shared<std::map<std::string, WallTime>>();
    if (isInError) {
        members->emplace(identity, std::chrono::system_clock::now());
    } else {
        members->erase(identity);
    }
    reading.membersInError = members->empty() ? nullptr : std::move(members);
    State::publish(*entry, std::move(reading));
    m_state->didChange();
}

void Readings::didExamine(const Corvel& corvel, const ShownCertificate& examined)
{
    const std::lock_guard lock(m_state->mutex);
    State::Entry* const entry = m_state->find(corvel);
    if (entry == nullptr || !entry->reading->certificate) {
        return;
    }
    Reading reading = *entry->reading;
    const auto take = [&examined](ShownCertificate& shown) {
        if (shown.fingerprint == examined.fingerprint) {
            shown = examined;
        }
    };
    take(reading.certificate->shown);
    if (reading.certificate->atSessionCheck) {
        take(*reading.certificate->atSessionCheck);
    }
    State::publish(*entry, std::move(reading));
    m_state->didChange();
}

void Readings::restore(const CorvelRef& corvel, const Reading& before)
{
    const std::lock_guard lock(m_state->mutex);
    State::Entry& entry = m_state->entryOf(corvel);
    Reading reading = *entry.reading;
    takeLastComplete(reading, before);
    if (before.offlineSince && (reading.outcome == Reading::Outcome::NotTried || reading.offlineSince)) {
        reading.offlineSince = before.offlineSince;
    }
    if (before.certificate && (!entry.certificate || (reading.certificate && reading.certificate->compared ==
                                                                                 CertificateChange::FirstContact))) {
        entry.certificate =
            KnownCertificate{before.certificate->shown.fingerprint, before.certificate->since.value_or(before.ended)};
        if (reading.certificate) {
            compare(*reading.certificate, reading.ended, entry.certificate);
        }
    }
    State::publish(entry, std::move(reading));
    m_state->didChange();
}

void Readings::forget(const Corvel& corvel)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->remove(corvel);
    m_state->didChange();
}

void Readings::forgetAll()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->entries.clear();
    m_state->underWay = 0;
    m_state->didChange();
}

} // namespace lodestar

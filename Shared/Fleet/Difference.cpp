// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Change.h"
#include "Fleet/FindingGroups.h"
#include "Fleet/Findings.h"
#include "Fleet/SeenObject.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ServiceableEvent.h"

#include <algorithm>
#include <set>
#include <utility>

namespace lodestar
{
namespace
{

bool isPartition(std::string_view type)
{
    return type == ObjectType::LogicalPartition || type == ObjectType::VirtualIOServer;
}

bool isOpenEvent(const ObjectKey& key, std::string_view state)
{
    return key.type == ObjectType::ServiceableEvent && ServiceableEvent::isOpenState(state);
}

/// The more, the worse.
int badnessOf(std::string_view type, std::string_view state)
{
    if (type == ObjectType::ServiceableEvent) {
        return ServiceableEvent::isOpenState(state) ? 1 : 0;
    }
    if (type == ObjectType::Group) {
        return state == groupInError ? 2 : 0;
    }
    if (!isPartition(type) && type != ObjectType::ManagedSystem) {
        return 0;
    }
    switch (isPartition(type) ? Partition::healthOfState(state) : ManagedSystem::healthOfState(state)) {
    case Health::Good:
        return 0;
    case Health::Error:
        return 2;
    default:
        return 1;
    }
}

ChangeSense senseOf(int badnessBefore, int badnessNow)
{
    if (badnessBefore == badnessNow) {
        return ChangeSense::Neutral;
    }
    return badnessNow > badnessBefore ? ChangeSense::Worse : ChangeSense::Better;
}

/// Whether there is something that must be written: all but the times that move with each reading.
bool differ(const ConsoleMemory& a, const ConsoleMemory& b)
{
    const auto sameFeed = [](const auto& x, const auto& y) { return x.first == y.first; };
    return a.objects != b.objects || a.missingSince != b.missingSince || a.offlineSince != b.offlineSince ||
           a.versionThen != b.versionThen || a.certificate != b.certificate ||
           a.certificateSince != b.certificateSince || a.neededAttention != b.neededAttention ||
           a.wasRead != b.wasRead || a.lastComplete.has_value() != b.lastComplete.has_value() ||
           !std::ranges::equal(a.readAt, b.readAt, sameFeed);
}

/// One reading of a console against what is remembered.
class Comparison
{
public:
    Comparison(const std::string& address, const std::string& console, const Reading& reading,
               const FeedDictionary* feeds, const ConsoleMemory* before)
        : m_address(address),
          m_console(keptText(console)),
          m_reading(reading),
          m_feeds(feeds),
          m_before(before),
          m_memory(before != nullptr ? std::make_shared<ConsoleMemory>(*before) : std::make_shared<ConsoleMemory>())
    {
    }

    Difference make()
    {
        if (m_reading.outcome == Reading::Outcome::Offline) {
            compareOffline();
        } else {
            compareAnswered();
        }
        m_memory->wasReadAgain = m_before != nullptr;
        m_memory->lastEnded = m_reading.ended;
        const bool changed = m_before == nullptr || differ(*m_before, *m_memory);
        return {std::move(m_changes), m_memory, changed};
    }

private:
    WallTime now() const { return m_reading.ended; }
    /// Found so at the first reading, something may have been so before.
    Since sinceNow(bool wasKnown) const { return {now(), wasKnown}; }
    /// The end of the last reading that had the feed; without a feed, of the last reading.
    WallTime lastSeen(std::string_view feed = {}) const
    {
        const ConsoleMemory& memory = *m_before;
        const auto place = memory.readAt.find(feed);
        const WallTime last = place != memory.readAt.end() ? place->second : memory.lastEnded.value_or(now());
        return std::min(last, now()); // the clock may have been set back
    }
    std::chrono::seconds lasted(const Since& since) const
    {
        return std::max(std::chrono::seconds(0), std::chrono::duration_cast<std::chrono::seconds>(now() - since.time));
    }

    Change& add(ChangeKind kind, ChangeSense sense, WallTime before, ObjectKey object = {})
    {
        Change& change = m_changes.emplace_back();
        change.seen = now();
        change.before = before;
        change.address = m_address;
        change.console = m_console;
        change.kind = kind;
        change.sense = sense;
        change.object = std::move(object);
        change.name = m_console;
        return change;
    }

    /// An offline console tells nothing of its feeds, objects and certificate: whatever it showed was not accepted.
    void compareOffline()
    {
        if (m_memory->offlineSince) {
            return;
        }
        m_memory->offlineSince = sinceNow(m_before != nullptr);
        if (m_before != nullptr) {
            add(ChangeKind::Offline, ChangeSense::Worse, lastSeen());
        }
    }

    void compareAnswered()
    {
        if (m_memory->offlineSince) {
            // The first answer of all is no return.
            if (m_memory->wasRead) {
                add(ChangeKind::OnlineAgain, ChangeSense::Better, lastSeen()).lasted = lasted(*m_memory->offlineSince);
            }
            m_memory->offlineSince.reset();
        }
        compareCertificate();
        for (const FeedReading& feed : m_reading.feeds) {
            compareFeed(feed);
        }
        m_memory->wasRead = true;
        if (m_reading.outcome == Reading::Outcome::Complete) {
            m_memory->lastComplete = now();
            m_memory->versionThen = keptText(m_reading.versionThen);
        }
        countNeeds();
    }

    void compareCertificate()
    {
        if (!m_reading.certificate || m_memory->certificate == m_reading.certificate->shown.fingerprint) {
            return;
        }
        const bool wasKnown = m_memory->certificate.has_value();
        m_memory->certificate = m_reading.certificate->shown.fingerprint;
        m_memory->certificateSince = sinceNow(wasKnown);
        if (wasKnown) {
            add(ChangeKind::CertificateChanged, ChangeSense::Neutral, lastSeen());
        }
    }

    void compareFeed(const FeedReading& reading)
    {
        const Feed feed = m_feeds != nullptr ? m_feeds->feed(reading.type) : Feed::notAvailable();
        const auto missing = m_memory->missingSince.find(reading.type);
        const bool wasMissing = missing != m_memory->missingSince.end();
        const ObjectKey object{std::string(reading.type), {}};
        // A look-up that failed since the refresh belongs to the screen that made it.
        const bool isMissing = feed.isNA() || (reading.error && reading.failedLookUps == 0);
        if (isMissing) {
            if (!wasMissing) {
                const bool wasRead = m_memory->wasRead;
                m_memory->missingSince.emplace(reading.type, sinceNow(wasRead));
                if (wasRead) {
                    add(ChangeKind::FeedMissing, ChangeSense::Worse, lastSeen(reading.type), object);
                }
            }
            return;
        }
        if (wasMissing) {
            add(ChangeKind::FeedReadAgain, ChangeSense::Better, lastSeen(), object).lasted = lasted(missing->second);
            m_memory->missingSince.erase(missing);
        }
        compareObjects(reading.type, feed);
        m_memory->readAt.insert_or_assign(std::string(reading.type), now());
    }

    void compareObjects(std::string_view type, const Feed& feed)
    {
        // At the first reading of a feed all objects are new to us, and none of them is news.
        const bool wasRead = m_memory->readAt.contains(type);
        std::set<ObjectKey> present;
        std::vector<SeenObject> objects = seenObjects(type, feed);
        if (type == ObjectType::Group) {
            judgeGroups(objects);
        }
        for (const SeenObject& seen : objects) {
            const auto known = m_memory->objects.find(seen.key);
            if (known == m_memory->objects.end()) {
                remember(seen, wasRead);
            } else {
                compare(seen, known->second);
            }
            present.insert(seen.key);
        }
        std::erase_if(m_memory->objects, [&](const auto& object) {
            const bool gone = object.first.type == type && !present.contains(object.first);
            if (gone) {
                tellGone(object.first, object.second);
            }
            return gone;
        });
    }

    bool isRead(std::string_view type) const
    {
        const auto* const reading = std::ranges::find(m_reading.feeds, type, &FeedReading::type);
        return !m_feeds->feed(type).isNA() &&
               (reading == m_reading.feeds.end() || !reading->error || reading->failedLookUps > 0);
    }

    /// Only by the feeds: what screens looked up is forgotten with each refresh, and a group must not get better by
    /// that. Without the feeds of all members a group says nothing.
    void judgeGroups(std::vector<SeenObject>& groups) const
    {
        if (!isRead(ObjectType::ManagedSystem) || !isRead(ObjectType::LogicalPartition) ||
            !isRead(ObjectType::VirtualIOServer)) {
            return;
        }
        std::set<std::string> inError;
        for (GroupInError& group : groupsInError(*m_feeds)) {
            inError.insert(keptText(std::move(group.identity)));
        }
        for (SeenObject& group : groups) {
            group.state = inError.contains(group.key.identifier) ? groupInError : groupIsGood;
        }
    }

    void remember(const SeenObject& seen, bool isNews)
    {
        KnownObject& object = m_memory->objects[seen.key];
        object.name = seen.name.value_or("");
        object.state = seen.state.value_or("");
        object.lit = seen.lit.value_or(false);
        object.text = seen.text.value_or("");
        object.stateSince = object.litSince = sinceNow(isNews);
        if (!isNews) {
            return;
        }
        if (isOpenEvent(seen.key, object.state)) {
            tellOpened(seen.key, object);
        } else {
            tell(ChangeKind::ObjectNew, ChangeSense::Neutral, seen.key, object).to = object.state;
        }
    }

    void compare(const SeenObject& seen, KnownObject& object)
    {
        object.name = seen.name.value_or(object.name);
        object.text = seen.text.value_or(object.text);
        if (seen.state && *seen.state != object.state) {
            changeState(seen.key, *seen.state, object);
        }
        if (seen.lit && *seen.lit != object.lit) {
            object.lit = *seen.lit;
            object.litSince = sinceNow(true);
            tell(object.lit ? ChangeKind::LEDOn : ChangeKind::LEDOff,
                 object.lit ? ChangeSense::Worse : ChangeSense::Better, seen.key, object);
        }
    }

    void changeState(const ObjectKey& key, const std::string& state, KnownObject& object)
    {
        const std::string before = std::exchange(object.state, state);
        if (key.type == ObjectType::Group && before.empty()) {
            object.stateSince = sinceNow(false); // judged for the first time
            return;
        }
        const Since since = std::exchange(object.stateSince, sinceNow(true));
        if (isOpenEvent(key, state)) {
            tellOpened(key, object);
            return;
        }
        const ChangeSense sense = senseOf(badnessOf(key.type, before), badnessOf(key.type, state));
        Change& change = tell(ChangeKind::State, sense, key, object);
        change.from = before;
        change.to = state;
        if (sense == ChangeSense::Better) {
            change.lasted = lasted(since);
        }
        if (!isPartition(key.type)) {
            return;
        }
        if (Partition::healthOfState(before) == Health::Good) {
            object.ranUntil = change.before;
        } else if (Partition::healthOfState(state) == Health::Good) {
            object.ranUntil.reset();
            object.stopExpected = false;
        }
    }

    Change& tell(ChangeKind kind, ChangeSense sense, const ObjectKey& key, const KnownObject& object)
    {
        Change& change = add(kind, sense, lastSeen(key.type), key);
        change.name = object.name;
        return change;
    }
    void tellOpened(const ObjectKey& key, const KnownObject& event)
    {
        tell(ChangeKind::EventOpened, ChangeSense::Worse, key, event).to = event.text;
    }
    void tellGone(const ObjectKey& key, const KnownObject& object)
    {
        if (key.type == ObjectType::ServiceableEvent) {
            const ChangeSense sense = isOpenEvent(key, object.state) ? ChangeSense::Better : ChangeSense::Neutral;
            tell(ChangeKind::EventGone, sense, key, object).to = object.text;
        } else {
            tell(ChangeKind::ObjectGone, ChangeSense::Neutral, key, object).from = object.state;
        }
    }

    void countNeeds()
    {
        // The findings live no longer than this function, so they may look at what others own.
        const auto borrowed = [](const auto* value) {
            return std::shared_ptr<std::remove_pointer_t<decltype(value)>>(std::shared_ptr<void>(), value);
        };
        const ConsoleSnapshot snapshot{nullptr,           m_console,
                                       m_address,         borrowed(&m_reading),
                                       borrowed(m_feeds), borrowed(&std::as_const(*m_memory))};
        m_memory->neededAttention = findingsOf({snapshot}, now()).needAttention;
    }

    const std::string& m_address;
    const std::string m_console;
    const Reading& m_reading;
    const FeedDictionary* const m_feeds;
    const ConsoleMemory* const m_before; ///< null at the first reading
    std::shared_ptr<ConsoleMemory> m_memory;
    std::vector<Change> m_changes;
};

} // namespace

Difference differenceOf(const std::string& address, const std::string& console, const Reading& reading,
                        const FeedDictionary* feeds, const std::shared_ptr<const ConsoleMemory>& before)
{
    if (reading.outcome == Reading::Outcome::NotTried) {
        return {{}, before, false};
    }
    return Comparison(address, console, reading, feeds, before.get()).make();
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ConsoleFindings.h"

#include "Fleet/FindingGroups.h"
#include "Fleet/FleetEvents.h"
#include "Fleet/SeenObject.h"
#include "Fleet/SystemNames.h"
#include "Inventory/Identity.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ServiceableEvent.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;

constexpr auto stopIsNews = 24h;

const Reading notTried;

std::string nameOr(const std::optional<std::string>& name, const std::string& identity)
{
    return name && !name->empty() ? *name : identity;
}

int countOf(const std::optional<std::string>& text)
{
    int count = 0;
    const std::string digits = text.value_or("");
    std::from_chars(digits.data(), digits.data() + digits.size(), count);
    return std::max(count, 0);
}

/// Finds what is wrong at one console.
class ConsoleFindings
{
public:
    ConsoleFindings(const ConsoleSnapshot& console, WallTime now, std::deque<Finding>& list)
        : m_console(console),
          m_reading(console.reading != nullptr ? *console.reading : notTried),
          m_now(now),
          m_list(list)
    {
    }

    void find()
    {
        if (m_reading.outcome == Reading::Outcome::Offline) {
            addOffline();
            return;
        }
        addMissing();
        if (m_console.feeds == nullptr) {
            return;
        }
        addSystems();
        addPartitions<VirtualIOServer>(FindingRank::IOServerError, FindingSubject::IOServer);
        addPartitions<LogicalPartition>(FindingRank::PartitionError, FindingSubject::Partition);
        addEvents();
        if (m_hasForeign || m_reading.membersInError != nullptr) {
            addGroups();
        }
    }

private:
    bool wasReadBefore() const { return m_console.memory != nullptr && m_console.memory->wasRead; }
    /// For what memory does not know yet, because it follows a reading only after a moment.
    Since sinceReading(bool exact) const
    {
        const bool wasTried = m_reading.outcome != Reading::Outcome::NotTried;
        return {wasTried ? m_reading.ended : m_reading.oldestFeed().value_or(m_now), exact};
    }

    Finding& add(FindingRank rank, FindingSubject subject)
    {
        Finding& finding = m_list.emplace_back();
        finding.rank = rank;
        finding.subject = subject;
        finding.corvel = m_console.corvel;
        finding.console = m_console.name;
        return finding;
    }

    Finding& addConsole(FindingRank rank, Since since)
    {
        Finding& finding = add(rank, FindingSubject::Console);
        finding.name = m_console.name;
        finding.since = since;
        return finding;
    }

    /// The key under which memory knows the object.
    template <typename Kind>
    static ObjectKey keyOf(const XMLElement& entry)
    {
        return {std::string(Kind::type), keptText(identityOfEntry(entry, Kind::type))};
    }

    template <typename Kind>
    Finding& addObject(FindingRank rank, FindingSubject subject, const XMLElement& entry, const Kind& record)
    {
        Finding& finding = add(rank, subject);
        finding.object = keyOf<Kind>(entry);
        finding.element = record.element();
        finding.state = record.state().value_or("");
        finding.name = nameOr(record.name(), finding.object.identifier);
        finding.referenceCode = record.referenceCode().value_or("");
        return finding;
    }

    const KnownObject* known(const ObjectKey& key) const
    {
        if (m_console.memory == nullptr) {
            return nullptr;
        }
        const auto found = m_console.memory->objects.find(key);
        return found != m_console.memory->objects.end() ? &found->second : nullptr;
    }

    Since stateSince(const Finding& finding) const
    {
        const KnownObject* const before = known(finding.object);
        return before != nullptr && before->state == keptText(finding.state) ? before->stateSince
                                                                             : sinceReading(before != nullptr);
    }

    Since litSince(const Finding& finding) const
    {
        const KnownObject* const before = known(finding.object);
        return before != nullptr && before->lit ? before->litSince : sinceReading(before != nullptr);
    }

    void addOffline()
    {
        Since since = sinceReading(wasReadBefore());
        if (m_console.memory != nullptr && m_console.memory->offlineSince) {
            since = *m_console.memory->offlineSince;
        } else if (m_reading.offlineSince) {
            since.time = *m_reading.offlineSince;
        }
        addConsole(FindingRank::ConsoleOffline, since).error = m_reading.error;
    }

    /// A feed counts as missing when its last attempt or a look-up through one of its links failed, and also when the
    /// console's feeds say "NA": none of these may pass for a feed without anything wrong in it.
    void addMissing()
    {
        const std::vector<std::string_view> failed = m_reading.missingFeeds();
        std::vector<std::string_view> missing;
        for (const FeedKind& kind : feedTable) {
            const bool isNA = m_console.feeds != nullptr && m_console.feeds->feed(kind.type).isNA();
            if (isNA || std::ranges::find(failed, kind.type) != failed.end()) {
                missing.push_back(kind.type);
            }
        }
        if (missing.empty()) {
            return;
        }
        // The sentence names all missing feeds, so it holds since the last of them went.
        std::optional<Since> last;
        for (const std::string_view type : missing) {
            const Since since = missingSince(type);
            if (!last || since.time > last->time) {
                last = since;
            }
        }
        addConsole(FindingRank::FeedsMissing, *last).missing = std::move(missing);
    }

    Since missingSince(std::string_view type) const
    {
        if (m_console.memory != nullptr) {
            const auto found = m_console.memory->missingSince.find(type);
            if (found != m_console.memory->missingSince.end()) {
                return found->second;
            }
        }
        Since since = sinceReading(wasReadBefore());
        // A screen may have tried after the reading, which had the feed.
        const auto* const feed = std::ranges::find(m_reading.feeds, type, &FeedReading::type);
        if (feed != m_reading.feeds.end() && feed->error && feed->began && *feed->began > since.time) {
            since = {*feed->began, feed->readAt.has_value()};
        }
        return since;
    }

    /// Calls the function with each entry of the type's feed and its record.
    template <typename Kind, typename Visit>
    void forEach(const Visit& visit)
    {
        for (const XMLElement& entry : m_console.feeds->feed(Kind::type).entries()) {
            const auto record = recordOfEntry<Kind>(entry);
            if (record) {
                visit(entry, record);
            } else {
                m_hasForeign = true;
            }
        }
    }

    void addSystems()
    {
        forEach<ManagedSystem>([this](const XMLElement& entry, const ManagedSystem& system) {
            const bool isError = system.health() == Health::Error;
            const bool isLit = system.isAttentionLEDLit();
            if (!isError && !isLit) {
                return;
            }
            const FindingRank errorRank = isLit ? FindingRank::SystemErrorLit : FindingRank::SystemError;
            Finding& finding =
                addObject(isError ? errorRank : FindingRank::LEDLit, FindingSubject::System, entry, system);
            finding.since = isError ? stateSince(finding) : litSince(finding);
        });
    }

    template <typename Kind>
    void addPartitions(FindingRank errorRank, FindingSubject subject)
    {
        forEach<Kind>([&](const XMLElement& entry, const Kind& partition) {
            const Health health = partition.health();
            if (health == Health::Error) {
                addPartition(errorRank, subject, entry, partition).system = systemOf(partition);
            } else if (health == Health::Idle && mayHaveStopped()) {
                const KnownObject* const before = known(keyOf<Kind>(entry));
                if (before != nullptr && isNewsOfStop(*before)) {
                    addPartition(FindingRank::Stopped, subject, entry, partition).ranUntil = before->ranUntil;
                }
            }
        });
    }

    template <typename Kind>
    Finding& addPartition(FindingRank rank, FindingSubject subject, const XMLElement& entry, const Kind& partition)
    {
        Finding& finding = addObject(rank, subject, entry, partition);
        finding.since = stateSince(finding);
        return finding;
    }

    bool isNewsOfStop(const KnownObject& object) const
    {
        return object.ranUntil && !object.stopExpected && m_now - *object.ranUntil <= stopIsNews;
    }

    /// Most consoles have nothing that stopped lately; then their many idle partitions need not be identified.
    bool mayHaveStopped()
    {
        if (!m_mayHaveStopped) {
            m_mayHaveStopped = m_console.memory != nullptr &&
                               std::ranges::any_of(m_console.memory->objects,
                                                   [this](const auto& each) { return isNewsOfStop(each.second); });
        }
        return *m_mayHaveStopped;
    }

    std::string systemOf(const Partition& partition)
    {
        if (!m_systemNames) {
            m_systemNames = systemNamesOf(*m_console.feeds);
        }
        const auto found = m_systemNames->find(identityOfSystem(partition));
        return found != m_systemNames->end() ? found->second : std::string();
    }

    void addEvents()
    {
        forEach<ServiceableEvent>([this](const XMLElement& entry, const ServiceableEvent& event) {
            if (!event.isOpen()) {
                return;
            }
            Finding& finding = add(FindingRank::OpenEvent, FindingSubject::Event);
            finding.object = keyOf<ServiceableEvent>(entry);
            finding.element = event.element();
            finding.state = event.problemState().value_or("");
            finding.eventNumber = event.problemNumber().value_or("");
            finding.eventText = event.shortDescription().value_or("");
            finding.name = nameOr(finding.eventText, finding.eventNumber);
            finding.referenceCode = event.referenceCode().value_or("");
            finding.callsHome = event.callsHome();
            finding.duplicates = countOf(event.duplicateCount());
            // An event tells its own time, which is older and better than that of any reading.
            const auto reported = wallTimeOf(reportedSeconds(event.lastReported()));
            finding.since = reported ? Since{*reported} : stateSince(finding);
        });
    }

    Since groupSince(const ObjectKey& key, const std::optional<WallTime>& lookedUp) const
    {
        if (lookedUp) {
            return {*lookedUp, false};
        }
        const KnownObject* const before = known(key);
        return before != nullptr && before->state == groupInError
                   ? before->stateSince
                   : sinceReading(before != nullptr && !before->state.empty());
    }

    void addGroups()
    {
        for (GroupInError& each : groupsInError(*m_console.feeds, m_reading.membersInError.get())) {
            Finding& finding = add(FindingRank::GroupError, FindingSubject::Group);
            finding.object = {std::string(ResourceGroup::type), keptText(std::move(each.identity))};
            finding.element = each.group.element();
            finding.name = nameOr(each.group.name(), finding.object.identifier);
            finding.since = groupSince(finding.object, each.lookedUp);
            finding.groupColor = each.group.color().value_or("");
            finding.membersInError = each.membersInError;
            finding.members = each.members;
        }
    }

    const ConsoleSnapshot& m_console;
    const Reading& m_reading;
    const WallTime m_now;
    std::deque<Finding>& m_list;
    bool m_hasForeign = false; ///< a feed holds objects of another type
    std::optional<bool> m_mayHaveStopped;
    std::optional<std::map<std::string, std::string>> m_systemNames; ///< by identity
};

} // namespace

void addFindings(const ConsoleSnapshot& console, WallTime now, std::deque<Finding>& list)
{
    ConsoleFindings(console, now, list).find();
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Exposition.h"

#include "Fleet/AttentionTable.h"
#include "Fleet/ExpositionText.h"
#include "Fleet/SeenObject.h"
#include "Fleet/TableCells.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/ServiceableEvent.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>

namespace lodestar
{
namespace
{

using Seconds = std::chrono::duration<double>;

std::int64_t unixTime(WallTime time)
{
    return std::chrono::floor<std::chrono::seconds>(time.time_since_epoch()).count();
}

/// A console and the labels of all its samples.
struct ShownConsole {
    const ConsoleSnapshot& snapshot;
    std::string labels;

    const Reading& reading() const { return *snapshot.reading; }
    bool isComplete() const { return reading().outcome == Reading::Outcome::Complete; }
    bool answered() const { return isComplete() || reading().outcome == Reading::Outcome::Partial; }
    bool isMissing(std::string_view type) const
    {
        const auto missing = reading().missingFeeds();
        return std::ranges::find(missing, type) != missing.end();
    }
    /// The feed as the last reading found it; "NA" when that did not.
    Feed feed(std::string_view type) const
    {
        return answered() && snapshot.feeds != nullptr && !isMissing(type) ? snapshot.feeds->feed(type) : Feed();
    }
    std::string with(const std::string& further) const { return labels + "," + further; }
};

/// Every console has labels of its own: two demonstration consoles, or names that differ only in what a label cannot
/// hold, would else make the whole text unreadable.
std::vector<ShownConsole> shownConsoles(const std::vector<ConsoleSnapshot>& consoles)
{
    std::vector<ShownConsole> shown;
    std::set<std::string> used;
    for (const ConsoleSnapshot& console : consoles) {
        const auto labelsOf = [&console](const std::string& name) {
            return metricLabel("console", name) + "," + metricLabel("address", console.address);
        };
        const std::string name = console.name.empty() ? console.address : console.name;
        std::string labels = labelsOf(name);
        for (int number = 2; !used.insert(labels).second; ++number) {
            labels = labelsOf(fmt::format("({}) {}", number, name));
        }
        shown.push_back({console, std::move(labels)});
    }
    return shown;
}

/// How many objects have which state.
class States
{
public:
    void add(const std::string& state) { ++m_counts[keptText(state)]; }

    /// `further(state)` gives the labels beside the state.
    template <typename Further>
    void tell(MetricFamily& family, const ShownConsole& console, std::string_view title, const Further& further) const
    {
        std::vector<std::pair<std::string, int>> ranked(m_counts.begin(), m_counts.end());
        std::ranges::stable_sort(ranked, std::ranges::greater(), &std::pair<std::string, int>::second);
        std::map<std::string, int> samples; // states that differ only in what a label cannot hold are one
        for (std::size_t i = 0; i < ranked.size(); ++i) {
            const std::string shown =
                i < Exposition::mostStates ? ranked[i].first : std::string(Exposition::otherState);
            samples[metricLabel(title, shown) + further(ranked[i].first)] += ranked[i].second;
        }
        for (const auto& [labels, count] : samples) {
            family.add(console.with(labels), count);
        }
    }

private:
    std::map<std::string, int> m_counts;
};

/// One of the figures that are told of a named system.
struct Figure {
    std::string_view name;
    std::string_view unit;
    std::string_view help;
    MetricsSegment segment;
    double MetricsFigures::*figure;

    /// Memory in bytes. Gigabytes come in single precision; they are exact to the megabyte.
    double of(const MetricsFigures& figures) const
    {
        constexpr double megabyte = 1e6;
        constexpr double megabytes = 1000; // of a gigabyte
        const double value = figures.*figure;
        return segment == MetricsSegment::Memory ? std::round(value * megabytes) * megabyte : value;
    }
};
constexpr std::array<Figure, 6> figures = {{
    {"system_processors", "", "Processors of the system.", MetricsSegment::Processors, &MetricsFigures::total},
    {"system_processors_allocated", "", "Processors that are allocated to partitions.", MetricsSegment::Processors,
     &MetricsFigures::allocated},
    {"system_processors_used", "", "Processors that are used.", MetricsSegment::Processors, &MetricsFigures::used},
    {"system_memory_bytes", "bytes", "Memory of the system.", MetricsSegment::Memory, &MetricsFigures::total},
    {"system_memory_allocated_bytes", "bytes", "Memory as the performance screen shows it as allocated.",
     MetricsSegment::Memory, &MetricsFigures::allocated},
    {"system_memory_used_bytes", "bytes", "Memory that is used.", MetricsSegment::Memory, &MetricsFigures::used},
}};

/// The whole text but the ages.
class Writer
{
public:
    Writer(const ExposedFleet& fleet, std::string& text)
        : m_fleet(fleet), m_text(text), m_consoles(shownConsoles(fleet.consoles))
    {
    }

    void write()
    {
        writeFleet();
        writeConsoles();
        writeFeeds();
        writeStates<ManagedSystem>("console_systems", "Managed systems by state and by what the state means.");
        writeStates<VirtualIOServer>("console_io_servers", "Virtual I/O servers by state and by what the state means.");
        writeStates<LogicalPartition>("console_partitions", "Logical partitions by state and by what the state means.");
        writeCounts();
        writeFindings();
        writeSystems();
    }

    const std::vector<ShownConsole>& consoles() const { return m_consoles; }

private:
    MetricFamily family(std::string_view name, std::string_view unit, std::string_view help)
    {
        return {m_text, name, unit, help};
    }

    void writeFleet()
    {
        family("build_info", "", "The program that wrote this.").add(metricLabel("version", m_fleet.version), 1);
        family("refresh_timestamp_seconds", "seconds", "When the last reading of all consoles ended.")
            .add("", unixTime(m_fleet.made));
        family("refresh_duration_seconds", "seconds", "How long the last reading of all consoles took.")
            .add("", Seconds(m_fleet.made - m_fleet.began).count());
        family("consoles", "", "Consoles that are watched.").add("", m_consoles.size());
        family("attention_needed", "", "Things that need attention.").add("", m_fleet.findings.needAttention);
        family("open_events", "", "Serviceable events that are open.").add("", m_fleet.findings.openEvents);
        family("attention_needed_before_offline", "",
               "Things that needed attention at consoles that do not answer now.")
            .add("", m_fleet.findings.beforeOffline);
    }

    /// One sample a console, unless the function gives none.
    template <typename Value>
    void writeEach(MetricFamily family, const Value& value)
    {
        for (const ShownConsole& console : m_consoles) {
            if (const auto number = value(console)) {
                family.add(console.labels, *number);
            }
        }
    }

    void writeConsoles()
    {
        const auto time = [](const std::optional<WallTime>& moment) {
            return moment ? std::optional(unixTime(*moment)) : std::nullopt;
        };
        {
            MetricFamily info = family("console_info", "", "What the console says of itself.");
            for (const ShownConsole& console : m_consoles) {
                info.add(console.with(metricLabel("version", console.snapshot.corvel->version().value_or(""))), 1);
            }
        }
        writeEach(family("console_up", "", "Whether the console answered the last reading."),
                  [](const ShownConsole& console) { return std::optional(console.answered() ? 1 : 0); });
        writeEach(family("console_complete", "", "Whether the last reading had all feeds of the console."),
                  [](const ShownConsole& console) { return std::optional(console.isComplete() ? 1 : 0); });
        writeEach(family("console_left_out", "",
                         "Whether the console is not asked because its certificate changed within an attempt."),
                  [this](const ShownConsole& console) {
                      return std::optional(
                          std::ranges::find(m_fleet.leftOut, console.snapshot.corvel) != m_fleet.leftOut.end() ? 1 : 0);
                  });
        writeEach(family("console_last_complete_timestamp_seconds", "seconds",
                         "When the last complete reading of the console ended."),
                  [&](const ShownConsole& console) { return time(console.reading().lastComplete); });
        writeEach(family("console_refresh_duration_seconds", "seconds", "How long the console's last reading took."),
                  [](const ShownConsole& console) {
                      return console.reading().outcome != Reading::Outcome::NotTried
                                 ? std::optional(Seconds(console.reading().duration()).count())
                                 : std::nullopt;
                  });
        writeEach(family("console_certificate_expiry_timestamp_seconds", "seconds",
                         "Until when the certificate is valid that the console showed last."),
                  [&](const ShownConsole& console) {
                      const auto& certificate = console.reading().certificate;
                      return certificate ? time(certificate->shown.validUntil) : std::nullopt;
                  });
    }

    void writeFeeds()
    {
        MetricFamily missing =
            family("console_feed_missing", "", "Whether a console that answered did not give this feed.");
        for (const ShownConsole& console : m_consoles) {
            for (const FeedKind& kind : feedTable) {
                if (console.answered()) {
                    missing.add(console.with(metricLabel("feed", std::string(kind.type))),
                                console.isMissing(kind.type) ? 1 : 0);
                }
            }
        }
    }

    template <typename Kind>
    void writeStates(std::string_view name, std::string_view help)
    {
        MetricFamily objects = family(name, "", help);
        for (const ShownConsole& console : m_consoles) {
            States states;
            for (const Kind& record : recordsOf<Kind>(console.feed(Kind::type))) {
                states.add(record.state().value_or(""));
            }
            states.tell(objects, console, "state", [](const std::string& state) {
                return "," + metricLabel("health", wordOf(Kind::healthOfState(state)));
            });
        }
    }

    void writeCounts()
    {
        {
            MetricFamily events = family("console_events", "", "Serviceable events by status.");
            for (const ShownConsole& console : m_consoles) {
                States states;
                for (const auto& event : recordsOf<ServiceableEvent>(console.feed(ServiceableEvent::type))) {
                    states.add(event.problemState().value_or(""));
                }
                states.tell(events, console, "status", [](const std::string& /*state*/) { return std::string(); });
            }
        }
        writeEach(family("console_attention_leds", "", "Managed systems whose attention LED is lit."),
                  [](const ShownConsole& console) {
                      const Feed feed = console.feed(ManagedSystem::type);
                      return feed.isNA() ? std::nullopt
                                         : std::optional(std::ranges::count_if(recordsOf<ManagedSystem>(feed),
                                                                               &ManagedSystem::isAttentionLEDLit));
                  });
        writeEach(family("console_groups", "", "Resource groups."), [](const ShownConsole& console) {
            const Feed feed = console.feed(ResourceGroup::type);
            return feed.isNA() ? std::nullopt : std::optional(recordsOf<ResourceGroup>(feed).size());
        });
    }

    /// A 0 is told of consoles alone that were read in full: elsewhere something may be wrong that nobody has seen.
    void writeFindings()
    {
        std::map<const Corvel*, std::map<FindingRank, int>> counts;
        for (const Finding& finding : m_fleet.findings.list) {
            ++counts[finding.corvel.get()][finding.rank];
        }
        MetricFamily findings = family("console_findings", "", "What Attention lists of the console, by kind.");
        for (const ShownConsole& console : m_consoles) {
            auto& ofConsole = counts[console.snapshot.corvel.get()];
            for (auto rank = static_cast<int>(FindingRank::SystemErrorLit);
                 rank <= static_cast<int>(FindingRank::OpenEvent); ++rank) {
                const int count = ofConsole[static_cast<FindingRank>(rank)];
                if (count > 0 || console.isComplete()) {
                    findings.add(
                        console.with(metricLabel("finding", std::string(wordOf(static_cast<FindingRank>(rank))))),
                        count);
                }
            }
        }
    }

    std::string labelsOf(const ExposedSystem& system) const
    {
        const auto console =
            std::ranges::find(m_consoles, system.corvel, [](const ShownConsole& each) { return each.snapshot.corvel; });
        return console->with(metricLabel("system", system.name) + "," + metricLabel("id", system.identifier));
    }

    /// Those with figures, each once: two names may mean one system.
    std::vector<const ExposedSystem*> systemsWithFigures() const
    {
        std::vector<const ExposedSystem*> systems;
        std::set<std::string> told;
        for (const ExposedSystem& system : m_fleet.systems) {
            if (system.metrics && told.insert(labelsOf(system)).second) {
                systems.push_back(&system);
            }
        }
        return systems;
    }

    void writeSystems()
    {
        {
            MetricFamily known = family("named_system_up", "", "Whether the figures of a system could be had.");
            std::map<std::string, bool> up;
            for (const ExposedSystem& system : m_fleet.systems) {
                up[metricLabel("name", system.asked)] |= latest(system, MetricsSegment::Processors) != nullptr ||
                                                         latest(system, MetricsSegment::Memory) != nullptr;
            }
            for (const auto& [name, isUp] : up) {
                known.add(name, isUp ? 1 : 0);
            }
        }
        const auto systems = systemsWithFigures();
        for (const Figure& figure : figures) {
            MetricFamily values = family(figure.name, figure.unit, figure.help);
            for (const ExposedSystem* const system : systems) {
                if (const MetricsMoment* const moment = latest(*system, figure.segment)) {
                    values.add(labelsOf(*system), figure.of(moment->figures));
                }
            }
        }
        MetricFamily sampled =
            family("system_sample_timestamp_seconds", "seconds", "When the console took these figures.");
        for (const ExposedSystem* const system : systems) {
            const MetricsMoment* const moment = latest(*system, MetricsSegment::Processors);
            if (moment != nullptr && moment->time) {
                sampled.add(labelsOf(*system), unixTime(*moment->time));
            }
        }
    }

    static const MetricsMoment* latest(const ExposedSystem& system, MetricsSegment segment)
    {
        return system.metrics && !system.metrics->of(segment).moments.empty()
                   ? &system.metrics->of(segment).moments.back()
                   : nullptr;
    }

    const ExposedFleet& m_fleet;
    std::string& m_text;
    const std::vector<ShownConsole> m_consoles;
};

} // namespace

Exposition::Exposition(const ExposedFleet& fleet)
{
    Writer writer(fleet, m_text);
    writer.write();
    for (const auto& console : writer.consoles()) {
        if (console.reading().lastComplete) {
            m_completed.emplace_back(console.labels, *console.reading().lastComplete);
        }
    }
}

std::string Exposition::textAt(WallTime now) const
{
    std::string text = m_text;
    {
        MetricFamily ages(text, "console_age_seconds", "seconds",
                          "How old the last complete reading of the console is.");
        for (const auto& [labels, completed] : m_completed) {
            ages.add(labels, std::max<std::int64_t>(0, unixTime(now) - unixTime(completed)));
        }
    }
    return text + "# EOF\n";
}

} // namespace lodestar

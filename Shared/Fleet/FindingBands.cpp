// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FindingBands.h"

#include "Platform/NameOrder.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <span>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using Indexes = std::vector<std::uint32_t>;

/// Consoles that are read together end their readings less than this apart, each from the next.
constexpr auto readTogether = 60s;
constexpr std::size_t groupsBySeverity = 1000; // consoles; more of them are grouped by console

/// Equal for findings whose rows would say the same. The place that a folded sentence names counts, too.
std::string sentenceOf(const Finding& finding)
{
    switch (finding.rank) {
    case FindingRank::SystemErrorLit:
        return finding.isIncomplete() ? "incomplete" : "error";
    case FindingRank::SystemError:
        return (finding.isIncomplete() ? "incomplete " : "error ") + finding.referenceCode;
    case FindingRank::IOServerError:
    case FindingRank::PartitionError:
        return fmt::format("{} {}\n{}", fmt::ptr(finding.corvel.get()), finding.system, finding.referenceCode);
    case FindingRank::ConsoleOffline: {
        const Error error = finding.error.value_or(Error());
        return fmt::format("{} {}", static_cast<int>(reasonOf(error)), statusOf(error));
    }
    case FindingRank::FeedsMissing:
        // Many feeds are only counted.
        return finding.missing.size() > 2 ? std::to_string(finding.missing.size())
                                          : fmt::format("{}", fmt::join(finding.missing, " "));
    case FindingRank::Stopped: {
        const auto minute = std::chrono::floor<std::chrono::minutes>(finding.ranUntil.value_or(WallTime()));
        return fmt::format("{} {}", static_cast<int>(finding.subject), minute.time_since_epoch().count());
    }
    case FindingRank::LEDLit:
        return finding.state;
    case FindingRank::GroupError:
        return fmt::format("{} {}", finding.membersInError, finding.members);
    case FindingRank::OpenEvent:
        break;
    }
    return {};
}

/// Cuts findings of one rank and sentence, the newest first, where a new reading begins.
class Fold
{
public:
    Fold(const std::vector<Finding>& list, std::vector<FindingRow>& rows) : m_list(list), m_rows(rows) {}

    void add(std::uint32_t index)
    {
        const Finding& finding = m_list[index];
        const Since since = finding.since.value_or(Since());
        const auto known = m_times.find(finding.corvel.get());
        const bool isOtherReading = known != m_times.end() && known->second != since.time;
        if (!m_indexes.empty() &&
            (isOtherReading || m_last.exact != since.exact || m_last.time - since.time >= readTogether)) {
            end();
        }
        m_times.emplace(finding.corvel.get(), since.time);
        m_last = since;
        m_indexes.push_back(index);
    }

    void end()
    {
        if (m_indexes.size() >= foldFrom) {
            m_rows.push_back({std::move(m_indexes)});
        } else {
            for (const std::uint32_t index : m_indexes) {
                m_rows.push_back({{index}});
            }
        }
        m_indexes.clear();
        m_times.clear();
    }

private:
    const std::vector<Finding>& m_list;
    std::vector<FindingRow>& m_rows;
    Indexes m_indexes;
    Since m_last;
    std::unordered_map<const Corvel*, WallTime> m_times;
};

void foldRank(const std::vector<Finding>& list, std::span<const std::uint32_t> indexes, std::vector<FindingRow>& rows)
{
    if (indexes.size() < foldFrom || list[indexes.front()].rank == FindingRank::OpenEvent) {
        for (const std::uint32_t index : indexes) {
            rows.push_back({{index}});
        }
        return;
    }
    std::unordered_map<std::string, Indexes> sentences;
    for (const std::uint32_t index : indexes) {
        sentences[sentenceOf(list[index])].push_back(index);
    }
    for (const auto& [sentence, same] : sentences) {
        Fold fold(list, rows);
        for (const std::uint32_t index : same) {
            fold.add(index);
        }
        fold.end();
    }
}

/// A folded row stands where its first finding would.
std::vector<FindingRow> folded(const std::vector<Finding>& list, std::span<const std::uint32_t> indexes)
{
    std::vector<FindingRow> rows;
    while (!indexes.empty()) {
        const FindingRank rank = list[indexes.front()].rank;
        const auto next = std::ranges::find_if(indexes, [&](std::uint32_t each) { return list[each].rank != rank; });
        const auto length = static_cast<std::size_t>(next - indexes.begin());
        foldRank(list, indexes.first(length), rows);
        indexes = indexes.subspan(length);
    }
    std::ranges::sort(rows, {}, [](const FindingRow& row) { return row.findings.front(); });
    return rows;
}

void fill(FindingGroup& group, const std::vector<Finding>& list, const Indexes& indexes, bool whole)
{
    group.count = indexes.size();
    std::vector<FindingRow> rows = folded(list, indexes);
    if (whole) {
        group.rows = std::move(rows);
        return;
    }
    std::size_t events = 0;
    for (FindingRow& row : rows) {
        const bool isEvent = list[row.findings.front()].rank == FindingRank::OpenEvent;
        if (group.rows.size() < rowsOfBand && (!isEvent || events < rowsOfEvents)) {
            events += isEvent ? 1 : 0;
            group.rows.push_back(std::move(row));
        } else {
            ++group.more;
        }
    }
}

std::vector<FindingGroup> bySeverity(const std::vector<Finding>& list, const Indexes& shown,
                                     const std::set<std::uintptr_t>& whole)
{
    std::map<FindingBand, Indexes> bands;
    for (const std::uint32_t index : shown) {
        bands[bandOf(list[index].rank)].push_back(index);
    }
    std::vector<FindingGroup> groups;
    for (const auto& [band, indexes] : bands) {
        FindingGroup& group = groups.emplace_back();
        group.band = band;
        fill(group, list, indexes, whole.contains(identityOf(group)));
    }
    return groups;
}

std::vector<Indexes> byConsole(const std::vector<Finding>& list, const Indexes& shown)
{
    std::vector<Indexes> consoles;
    std::unordered_map<const Corvel*, std::size_t> places;
    for (const std::uint32_t index : shown) {
        const auto [place, isNew] = places.try_emplace(list[index].corvel.get(), consoles.size());
        if (isNew) {
            consoles.emplace_back();
        }
        consoles[place->second].push_back(index);
    }
    return consoles;
}

/// Puts the worst consoles first.
void rank(std::vector<Indexes>& consoles, const std::vector<Finding>& list)
{
    struct Place {
        FindingRank worst;
        std::size_t things;
        Indexes indexes;
    };
    std::vector<Place> places;
    places.reserve(consoles.size());
    for (Indexes& indexes : consoles) {
        const auto isThing = [&](std::uint32_t each) { return list[each].rank != FindingRank::OpenEvent; };
        const auto things = static_cast<std::size_t>(std::ranges::count_if(indexes, isThing));
        places.push_back({list[indexes.front()].rank, things, std::move(indexes)});
    }
    std::ranges::stable_sort(places, [&list](const Place& a, const Place& b) {
        const auto first = std::tie(a.worst, b.things);
        const auto second = std::tie(b.worst, a.things);
        return first != second ? first < second
                               : NameOrder::standard().compare(list[a.indexes.front()].console,
                                                               list[b.indexes.front()].console) < 0;
    });
    std::ranges::transform(places, consoles.begin(), [](Place& place) { return std::move(place.indexes); });
}

} // namespace

bool FindingFilter::shows(const Finding& finding) const
{
    return (kinds.empty() || kinds.contains(finding.subject)) &&
           (consoles.empty() || consoles.contains(finding.corvel.get()));
}

FindingView viewOf(const Findings& findings, const FindingFilter& filter, std::size_t consoles,
                   const std::set<std::uintptr_t>& whole)
{
    const std::vector<Finding>& list = findings.list;
    FindingView view;
    Indexes shown;
    for (std::uint32_t i = 0; i < list.size(); ++i) {
        if (filter.shows(list[i])) {
            shown.push_back(i);
        }
    }
    view.left = list.size() - shown.size();
    if (filter.grouping == FindingFilter::Grouping::Severity && consoles <= groupsBySeverity) {
        view.groups = bySeverity(list, shown, whole);
        return view;
    }
    std::vector<Indexes> ofConsoles = byConsole(list, shown);
    rank(ofConsoles, list);
    if (ofConsoles.size() > consolesAtOnce) {
        view.moreConsoles = ofConsoles.size() - consolesAtOnce;
        ofConsoles.resize(consolesAtOnce);
    }
    for (const Indexes& indexes : ofConsoles) {
        const Finding& worst = list[indexes.front()];
        FindingGroup& group = view.groups.emplace_back();
        group.corvel = worst.corvel.get();
        group.console = worst.console;
        fill(group, list, indexes, whole.contains(identityOf(group)));
    }
    return view;
}

std::uintptr_t identityOf(const FindingGroup& group)
{
    return group.corvel != nullptr ? reinterpret_cast<std::uintptr_t>(group.corvel)
                                   : static_cast<std::uintptr_t>(group.band);
}

} // namespace lodestar

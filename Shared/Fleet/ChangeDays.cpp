// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ChangeDays.h"

#include <algorithm>
#include <ctime>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

namespace lodestar
{
namespace
{

using namespace std::chrono;

/// Consoles of one refresh end one after the other. A longer pause lies between two refreshes.
constexpr seconds longestPause{30};

/// What changes of one row have in common, apart from when they were seen.
using Likeness = std::tuple<local_days, ChangeKind, ChangeSense, std::string_view, std::string_view, std::string_view,
                            std::string_view, minutes>;

/// Of what a change tells, only what its row says: events have texts of their own, new objects states of their own.
Likeness likenessOf(const Change& change, local_days day)
{
    const bool saysStates = change.kind == ChangeKind::State;
    return {day,
            change.kind,
            change.sense,
            isOfConsole(change) ? std::string_view() : change.address,
            change.object.type,
            saysStates ? change.from : std::string_view(),
            saysStates ? change.to : std::string_view(),
            change.kind == ChangeKind::OnlineAgain ? round<minutes>(change.lasted) : minutes()};
}

/// The changes of alike ones that one reading found.
struct Bucket {
    WallTime last; ///< when the one that was added last was seen
    std::vector<std::uint32_t> changes;
    bool isPlaced = false;
};

bool belongs(const Bucket& bucket, const Change& change)
{
    const auto pause = bucket.last - change.seen;
    return isOfConsole(change) ? pause <= longestPause : pause == pause.zero();
}

/// Newest first; changes of one moment keep their order.
std::vector<std::uint32_t> newestFirst(const std::vector<Change>& changes, const std::set<std::string>& addresses)
{
    std::vector<std::uint32_t> order;
    for (std::uint32_t i = 0; i < changes.size(); ++i) {
        if (addresses.empty() || addresses.contains(changes[i].address)) {
            order.push_back(i);
        }
    }
    std::ranges::stable_sort(order, [&](auto a, auto b) { return changes[a].seen > changes[b].seen; });
    return order;
}

void add(std::vector<ChangeDay>& days, local_days date, ChangeRow row, ChangeSense sense)
{
    if (days.empty() || days.back().date != date) {
        days.push_back({date, {}});
    }
    ChangeDay& day = days.back();
    day.rows.push_back(std::move(row));
    day.worse += sense == ChangeSense::Worse ? 1 : 0;
    day.better += sense == ChangeSense::Better ? 1 : 0;
}

} // namespace

bool isOfConsole(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::Offline:
    case ChangeKind::OnlineAgain:
    case ChangeKind::FeedMissing:
    case ChangeKind::FeedReadAgain:
    case ChangeKind::CertificateChanged:
        return true;
    default:
        return false;
    }
}

local_days localDayOf(WallTime time)
{
    const std::time_t moment = system_clock::to_time_t(time);
    std::tm local{};
    localtime_r(&moment, &local);
    return local_days(year(local.tm_year + 1900) / month(static_cast<unsigned>(local.tm_mon + 1)) /
                      day(static_cast<unsigned>(local.tm_mday)));
}

std::vector<ChangeDay> daysOf(const std::vector<Change>& changes, const std::set<std::string>& addresses,
                              const DayOf& dayOf)
{
    const std::vector<std::uint32_t> order = newestFirst(changes, addresses);
    std::vector<local_days> dates(changes.size());
    std::vector<Bucket> buckets;
    std::vector<std::size_t> bucketOf(changes.size());
    std::map<Likeness, std::size_t> open;
    for (const std::uint32_t i : order) {
        dates[i] = dayOf(changes[i].seen);
        const auto [place, isNew] = open.try_emplace(likenessOf(changes[i], dates[i]), buckets.size());
        if (isNew || !belongs(buckets[place->second], changes[i])) {
            place->second = buckets.size();
            buckets.emplace_back();
        }
        buckets[place->second].last = changes[i].seen;
        buckets[place->second].changes.push_back(i);
        bucketOf[i] = place->second;
    }
    std::vector<ChangeDay> days;
    for (const std::uint32_t i : order) {
        Bucket& bucket = buckets[bucketOf[i]];
        if (bucket.changes.size() < foldChangesFrom) {
            add(days, dates[i], {{i}}, changes[i].sense);
        } else if (!std::exchange(bucket.isPlaced, true)) {
            add(days, dates[i], {bucket.changes}, changes[i].sense);
        }
    }
    return days;
}

std::vector<ChangeCount> countsOf(const std::vector<ChangeDay>& days, local_days today, std::size_t count)
{
    std::vector<ChangeCount> counts(count);
    for (const ChangeDay& day : days) {
        const auto ago = (today - day.date).count();
        if (ago >= 0 && static_cast<std::size_t>(ago) < count) {
            counts[count - 1 - static_cast<std::size_t>(ago)] = {day.worse, day.better};
        }
    }
    return counts;
}

int differenceSince(const std::vector<Change>& changes, std::string_view type, std::string_view state, WallTime since)
{
    return std::accumulate(changes.begin(), changes.end(), 0, [&](int sum, const Change& change) {
        const bool counts = change.seen > since && change.object.type == type && change.from != change.to &&
                            (change.kind == ChangeKind::State || change.kind == ChangeKind::ObjectNew ||
                             change.kind == ChangeKind::ObjectGone);
        return !counts ? sum : sum + (change.to == state ? 1 : 0) - (change.from == state ? 1 : 0);
    });
}

} // namespace lodestar

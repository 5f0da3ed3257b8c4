// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchNews.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace lodestar
{
namespace
{

using FindingOfThing = std::map<WatchedThing, const Finding*>;

FindingOfThing byThing(const Findings& findings)
{
    FindingOfThing found;
    for (const Finding& finding : findings.list) {
        found.emplace(thingOf(finding), &finding); // the first of a thing's findings is the worst
    }
    return found;
}

bool isTold(const Finding& finding, const WatchSettings& settings)
{
    if (finding.rank != FindingRank::OpenEvent) {
        return settings.worse;
    }
    switch (settings.newEvents) {
    case WatchSettings::NewEvents::None:
        return false;
    case WatchSettings::NewEvents::Open:
        return true;
    case WatchSettings::NewEvents::OpenCallHome:
        return finding.callsHome;
    }
    return false;
}

/// An object that is new and has a row in Attention at once is worse, too.
bool mayBeWorse(const Change& change)
{
    return change.sense == ChangeSense::Worse || change.kind == ChangeKind::ObjectNew;
}

/// An event that is gone is nothing that got better: only that was seen.
bool isBetter(const Change& change)
{
    return change.sense == ChangeSense::Better && change.kind != ChangeKind::EventGone;
}

std::size_t consolesOf(const std::vector<Change>& changes)
{
    std::set<std::string> addresses;
    for (const Change& change : changes) {
        addresses.insert(change.address);
    }
    return addresses.size();
}

} // namespace

WatchedThing thingOf(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::Offline:
    case ChangeKind::OnlineAgain:
        return {change.address, WatchedThing::Kind::Offline, {}};
    case ChangeKind::FeedMissing:
    case ChangeKind::FeedReadAgain:
        return {change.address, WatchedThing::Kind::Feeds, {}};
    default:
        return {change.address, WatchedThing::Kind::Object, change.object};
    }
}

WatchedThing thingOf(const Finding& finding)
{
    const std::string address = finding.corvel ? finding.corvel->address().value_or("") : std::string();
    switch (finding.rank) {
    case FindingRank::ConsoleOffline:
        return {address, WatchedThing::Kind::Offline, {}};
    case FindingRank::FeedsMissing:
        return {address, WatchedThing::Kind::Feeds, {}};
    default:
        return {address, WatchedThing::Kind::Object, finding.object};
    }
}

WatchNews newsOf(const std::vector<Change>& changes, const Findings& findings, const WatchSettings& settings)
{
    WatchNews news;
    news.needAttention = findings.needAttention;
    const FindingOfThing found = byThing(findings);
    std::vector<std::pair<const Change*, const Finding*>> worse;
    std::set<WatchedThing> things;
    for (const Change& change : changes) {
        const WatchedThing thing = thingOf(change);
        if (mayBeWorse(change)) {
            const auto finding = found.find(thing);
            if (finding != found.end() && isTold(*finding->second, settings) && things.insert(thing).second) {
                worse.emplace_back(&change, finding->second);
            }
        }
    }
    for (const Change& change : changes) {
        // What is better in one respect and in Attention all the same is not well.
        if (settings.better && isBetter(change) && !found.contains(thingOf(change)) &&
            things.insert(thingOf(change)).second) {
            news.better.push_back(change);
        }
    }
    std::ranges::stable_sort(worse, {}, [](const auto& pair) { return pair.second->rank; });
    for (const auto& [change, finding] : worse) {
        news.worse.push_back(*change);
        news.worseNow.push_back(*finding);
    }
    news.consoles = consolesOf(news.worse);
    return news;
}

WatchNews newsOfNight(std::vector<Change> worse, const Findings& findings)
{
    WatchNews news;
    news.ofTheNight = true;
    news.needAttention = findings.needAttention;
    const FindingOfThing found = byThing(findings);
    for (const Change& change : worse) {
        if (const auto finding = found.find(thingOf(change)); finding != found.end()) {
            news.worseNow.push_back(*finding->second);
        }
    }
    news.worse = std::move(worse);
    news.consoles = consolesOf(news.worse);
    return news;
}

} // namespace lodestar

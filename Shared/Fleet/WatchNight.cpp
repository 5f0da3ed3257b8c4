// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchNight.h"

#include "Fleet/TextFields.h"

#include <charconv>
#include <chrono>
#include <cstdint>
#include <optional>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::chrono::hours oneNight{24};
constexpr std::size_t fieldCount = 12;

std::string numberText(std::int64_t number)
{
    return std::to_string(number);
}

std::optional<std::int64_t> numberOf(const std::string& text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::string lineOf(const Change& change)
{
    return lineOfFields({numberText(change.seen.time_since_epoch().count()),
                         numberText(change.before.time_since_epoch().count()),
                         numberText(static_cast<int>(change.kind)), numberText(static_cast<int>(change.sense)),
                         numberText(change.lasted.count()), change.address, change.console, change.object.type,
                         change.object.identifier, change.name, change.from, change.to});
}

std::optional<Change> changeOf(std::vector<std::string>&& fields)
{
    if (fields.size() != fieldCount) {
        return std::nullopt;
    }
    const auto seen = numberOf(fields[0]);
    const auto before = numberOf(fields[1]);
    const auto kind = numberOf(fields[2]);
    const auto sense = numberOf(fields[3]);
    const auto lasted = numberOf(fields[4]);
    if (!seen || !before || !kind || !sense || !lasted || *kind < 0 ||
        *kind > static_cast<int>(ChangeKind::CertificateChanged) || *sense < 0 ||
        *sense > static_cast<int>(ChangeSense::Neutral)) {
        return std::nullopt;
    }
    Change change;
    change.seen = WallTime(WallTime::duration(*seen));
    change.before = WallTime(WallTime::duration(*before));
    change.kind = static_cast<ChangeKind>(*kind);
    change.sense = static_cast<ChangeSense>(*sense);
    change.lasted = std::chrono::seconds(*lasted);
    change.address = std::move(fields[5]);
    change.console = std::move(fields[6]);
    change.object = {std::move(fields[7]), std::move(fields[8])};
    change.name = std::move(fields[9]);
    change.from = std::move(fields[10]);
    change.to = std::move(fields[11]);
    return change;
}

} // namespace

void WatchNight::add(const std::vector<Change>& worse)
{
    for (const Change& change : worse) {
        m_worse.insert_or_assign(thingOf(change), change);
    }
}

void WatchNight::keepOnly(const std::set<std::string>& addresses)
{
    std::erase_if(m_worse, [&addresses](const auto& entry) { return !addresses.contains(entry.first.address); });
}

WatchNews WatchNight::sum(const Findings& findings)
{
    std::vector<Change> worse;
    for (auto& [thing, change] : m_worse) {
        worse.push_back(std::move(change));
    }
    m_worse.clear();
    return newsOfNight(std::move(worse), findings);
}

std::string WatchNight::text() const
{
    std::string text;
    for (const auto& [thing, change] : m_worse) {
        const std::string line = lineOf(change);
        if (text.size() + line.size() <= longestText) {
            text += line;
        }
    }
    return text;
}

WatchNight WatchNight::ofText(std::string_view text, WallTime now)
{
    WatchNight night;
    for (std::vector<std::string>& fields : linesOfFields(text)) {
        if (const auto change = changeOf(std::move(fields)); change && now - change->seen <= oneNight) {
            night.add({*change});
        }
    }
    return night;
}

} // namespace lodestar

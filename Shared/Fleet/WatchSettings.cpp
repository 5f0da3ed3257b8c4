// SPDX-License-Identifier: Apache-2.0
#include "Fleet/WatchSettings.h"

#include "Fleet/TextFields.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace lodestar
{
namespace
{

constexpr int minutesOfDay = 24 * 60;
constexpr std::string_view newEventsNames[] = {"none", "open", "home"};

std::optional<int> numberOf(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

void readFlag(bool& flag, std::string_view value)
{
    if (value == "0" || value == "1") {
        flag = value == "1";
    }
}

void readTimeOfDay(std::chrono::minutes& time, std::string_view value)
{
    if (const auto number = numberOf(value); number && *number >= 0 && *number < minutesOfDay) {
        time = std::chrono::minutes(*number);
    }
}

void readPart(WatchSettings& settings, std::string_view name, std::string_view value)
{
    if (name == "on") {
        readFlag(settings.on, value);
    } else if (name == "every") {
        if (const auto number = numberOf(value);
            number && std::ranges::find(WatchSettings::intervals, *number) != std::end(WatchSettings::intervals)) {
            settings.every = std::chrono::minutes(*number);
        }
    } else if (name == "worse") {
        readFlag(settings.worse, value);
    } else if (name == "better") {
        readFlag(settings.better, value);
    } else if (name == "events") {
        if (const auto* const found = std::ranges::find(newEventsNames, value); found != std::end(newEventsNames)) {
            settings.newEvents = static_cast<WatchSettings::NewEvents>(found - std::begin(newEventsNames));
        }
    } else if (name == "quiet") {
        readFlag(settings.quiet, value);
    } else if (name == "from") {
        readTimeOfDay(settings.quietFrom, value);
    } else if (name == "until") {
        readTimeOfDay(settings.quietUntil, value);
    } else if (name == "without") {
        settings.without.insert(unescapedField(value));
    }
}

} // namespace

std::string WatchSettings::text() const
{
    std::string text;
    const auto add = [&text](std::string_view name, const std::string& value) {
        text.append(name).append(" ").append(value).append("\n");
    };
    add("on", on ? "1" : "0");
    add("every", std::to_string(every.count()));
    add("worse", worse ? "1" : "0");
    add("better", better ? "1" : "0");
    add("events", std::string(newEventsNames[static_cast<std::size_t>(newEvents)]));
    add("quiet", quiet ? "1" : "0");
    add("from", std::to_string(quietFrom.count()));
    add("until", std::to_string(quietUntil.count()));
    for (const std::string& address : without) {
        add("without", escapedField(address));
    }
    return text;
}

WatchSettings WatchSettings::ofText(std::string_view text)
{
    WatchSettings settings;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (const auto space = line.find(' '); space != std::string_view::npos) {
            readPart(settings, line.substr(0, space), line.substr(space + 1));
        }
    }
    return settings;
}

bool WatchSettings::isQuietAt(std::chrono::minutes sinceMidnight) const
{
    if (!quiet) {
        return false;
    }
    const bool begun = sinceMidnight >= quietFrom;
    const bool ended = sinceMidnight >= quietUntil;
    return quietFrom <= quietUntil ? begun && !ended : begun || !ended;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <set>
#include <string>
#include <string_view>

namespace lodestar
{

/// What a person chose. Kept as one text in the history, where settings of the watch live.
struct WatchSettings {
    enum class NewEvents { None, Open, OpenCallHome };
    static constexpr int intervals[] = {1, 5, 15, 30, 60}; ///< minutes

    bool on = false;
    std::chrono::minutes every{15};
    bool worse = true;
    bool better = false;
    NewEvents newEvents = NewEvents::None;
    /// Addresses of the consoles that a person left out. All others are watched, also those that come later.
    std::set<std::string> without;
    bool quiet = false;
    std::chrono::minutes quietFrom{22 * 60}; ///< since midnight
    std::chrono::minutes quietUntil{6 * 60 + 30};

    friend bool operator==(const WatchSettings&, const WatchSettings&) = default;
    std::string text() const;
    /// The settings of a text that `text` made; parts that cannot be read have their first value.
    static WatchSettings ofText(std::string_view text);
    /// Hours that begin when they end are none.
    bool isQuietAt(std::chrono::minutes sinceMidnight) const;
};

} // namespace lodestar

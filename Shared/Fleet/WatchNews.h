// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Change.h"
#include "Fleet/Findings.h"
#include "Fleet/WatchSettings.h"

#include <compare>
#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

namespace lodestar
{

/// What one message has to tell: one entry a thing, however many of its properties changed. The words belong to the
/// application.
struct WatchNews {
    std::vector<Change> worse; ///< worst first
    std::vector<Change> better;
    std::vector<Finding> worseNow; ///< the findings behind `worse`, as far as they are still there, in the same order
    std::size_t needAttention = 0; ///< things that need attention now
    std::size_t consoles = 0;      ///< consoles with something worse
    bool ofTheNight = false;       ///< sums up quiet hours
    bool empty() const { return worse.empty() && better.empty(); }
};

/// What a change is about, as a row of Attention is: a console that is offline, feeds of one console that are missing,
/// or one object.
struct WatchedThing {
    enum class Kind { Object, Offline, Feeds };
    std::string address;
    Kind kind = Kind::Object;
    ObjectKey object; ///< empty for a console
    friend bool operator==(const WatchedThing&, const WatchedThing&) = default;
    friend std::strong_ordering operator<=>(const WatchedThing& a, const WatchedThing& b)
    {
        return std::tie(a.address, a.kind, a.object) <=> std::tie(b.address, b.kind, b.object);
    }
};
WatchedThing thingOf(const Change& change);
WatchedThing thingOf(const Finding& finding);

/// What a refresh has to tell by the settings. Worse is only what has a row in Attention now. Pure; any thread.
WatchNews newsOf(const std::vector<Change>& changes, const Findings& findings, const WatchSettings& settings);

/// The sum of quiet hours. Pure; any thread.
WatchNews newsOfNight(std::vector<Change> worse, const Findings& findings);

} // namespace lodestar

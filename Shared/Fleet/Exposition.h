// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Findings.h"
#include "Inventory/Metrics/MetricsTimeline.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

/// A system whose processors and memory are told.
struct ExposedSystem {
    std::string asked; ///< how a person named it
    CorvelRef corvel;  ///< null when no console that answered has it
    std::string name;
    std::string identifier;
    std::optional<PerformanceMetrics> metrics; ///< none when they could not be had
};

/// What one reading of the fleet found.
struct ExposedFleet {
    std::vector<ConsoleSnapshot> consoles;
    Findings findings;
    std::vector<CorvelRef> leftOut; ///< were not asked because their certificate changed
    std::vector<ExposedSystem> systems;
    WallTime began;
    WallTime made;
    std::string version; ///< of the program
};

/// The fleet for a monitoring system, as OpenMetrics text. All values are gauges, which older readers of the format
/// understand, too, and no sample has a time stamp of its own, which collectors of text files refuse.
///
/// What is not known has no sample: a feed that was not read is not a feed without objects. A console is told by name
/// and address; there is no user, password or session key in the text. Consoles name states themselves, so the number
/// of different ones that are told is bounded. A value; any thread.
class Exposition
{
public:
    /// States of one kind of object on one console; rarer ones are counted together as `otherState`, by health.
    static constexpr std::size_t mostStates = 20;
    static constexpr std::string_view otherState = "other";

    explicit Exposition(const ExposedFleet& fleet);
    /// The whole text; only the ages depend on the time.
    std::string textAt(WallTime now) const;

private:
    std::string m_text; ///< without the ages and the end
    std::vector<std::pair<std::string, WallTime>> m_completed;
};

} // namespace lodestar

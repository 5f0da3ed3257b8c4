// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Change.h"
#include "Fleet/Findings.h"
#include "Fleet/Readings.h"
#include "Fleet/WatchSchedule.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// What the watch stands on: clocks, the fleet, the history. Tests put others in their place. Main thread; every
/// function is called there, and calls back there.
class WatchSurroundings
{
public:
    virtual ~WatchSurroundings() = default;

    /// The clock of the schedule.
    virtual WatchSchedule::Moment now() const = 0;
    virtual WallTime wallNow() const = 0;
    virtual std::chrono::minutes sinceMidnight(WallTime time) const = 0;
    virtual void later(std::chrono::milliseconds delay, std::function<void()> function) = 0;

    virtual std::vector<CorvelRef> consoles() const = 0;
    virtual FleetReading fleet() const = 0;
    virtual std::shared_ptr<const Reading> readingOf(const Corvel& corvel) const = 0;
    /// Refreshes the console as the pull does, but keeps what was fetched before until the refresh ends.
    virtual void refresh(const CorvelRef& corvel, std::function<void()> ended) = 0;

    /// From now on, collects what readings change.
    virtual void beginCollecting() = 0;
    /// Ends collecting, once everything that was read is compared.
    virtual void endCollecting(std::function<void(std::vector<Change>)> then) = 0;
    virtual void findings(std::function<void(Findings)> then) = 0;

    virtual std::optional<std::string> setting(const std::string& name) const = 0;
    virtual void setSetting(const std::string& name, std::optional<std::string> value) = 0;
    virtual bool requiresPasscode() const = 0;

    /// Those of the process.
    static std::shared_ptr<WatchSurroundings> ofProcess();
};

} // namespace lodestar

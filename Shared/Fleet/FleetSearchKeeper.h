// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSearch.h"
#include "Platform/NotificationCenter.h"

#include <memory>

namespace lodestar
{

/// Keeps a search of all registered consoles up to date while somebody holds it: a screen that searches, or is about
/// to. What changes is read anew off the main thread, one console at a time; then "FleetSearchDidChange" is posted.
/// Nothing is kept once the last holder lets go, nor when memory runs out. Main thread.
class FleetSearchKeeper : public std::enable_shared_from_this<FleetSearchKeeper>
{
    struct Only {
    };

public:
    /// The one of the process.
    static std::shared_ptr<FleetSearchKeeper> shared();
    explicit FleetSearchKeeper(Only /*made by shared()*/) {}
    FleetSearchKeeper(const FleetSearchKeeper&) = delete;
    FleetSearchKeeper& operator=(const FleetSearchKeeper&) = delete;

    /// Null until the first one is made.
    const std::shared_ptr<const FleetSearch>& search() const { return m_search; }

private:
    void update();
    void show(std::shared_ptr<const FleetSearch> search);

    std::shared_ptr<const FleetSearch> m_search;
    bool m_isMaking = false;
    bool m_isAskedAgain = false; ///< while a search is made
    NotificationCenter::Observation m_observation;
};

} // namespace lodestar

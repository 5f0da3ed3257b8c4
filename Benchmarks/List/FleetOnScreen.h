// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/SimulatorProcess.h"
#include "Tools/Stage/SceneStage.h"

namespace lodestar::bench
{

struct Refresh {
    double nanoseconds = 0;
    double longestGap = 0; ///< milliseconds in which the main thread did not come back to its loop
    int online = 0;        ///< consoles that are so afterwards
};

/// Simulated consoles, their list, and the window that shows it. Main thread.
class FleetOnScreen
{
public:
    /// Lists the consoles; none has been asked for anything yet.
    explicit FleetOnScreen(const simulator::Settings& settings);

    simulator::SimulatorProcess& simulator() { return m_simulator; }
    void openDashboard() { m_stage.tabs().setSelectedIndex(1); }
    void closeDashboard() { m_stage.tabs().setSelectedIndex(0); }
    /// A pull, until it has settled for every console; throws when it does not within ten minutes.
    Refresh refresh();

private:
    simulator::SimulatorProcess m_simulator;
    scenes::SceneStage m_stage;
};

} // namespace lodestar::bench

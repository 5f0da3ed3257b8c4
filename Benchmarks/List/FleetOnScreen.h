// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/SimulatorProcess.h"
#include "Tools/Stage/SceneStage.h"

namespace lodestar::bench
{

struct Refresh {
    double nanoseconds = 0;
    double longestGap = 0; ///< milliseconds during which the main thread did not return to its loop
    int online = 0;        ///< how many consoles are online afterwards
};

/// Simulated consoles, their list, and the window that shows the list. Main thread.
class FleetOnScreen
{
public:
    /// Lists the consoles, but asks none of them for anything.
    explicit FleetOnScreen(const simulator::Settings& settings);

    simulator::SimulatorProcess& simulator() { return m_simulator; }
    void openList() { m_stage.tabs().setSelectedIndex(0); }
    void openDashboard() { m_stage.tabs().setSelectedIndex(1); }
    void openAttention() { m_stage.tabs().setSelectedIndex(2); }
    /// Pulls the list to refresh it and waits until every console has settled. Throws after ten minutes.
    Refresh refresh();

private:
    simulator::SimulatorProcess m_simulator;
    scenes::SceneStage m_stage;
};

} // namespace lodestar::bench

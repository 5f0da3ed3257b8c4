// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Inventory/Feed.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"

#include <chrono>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace lodestar::faults
{

/// Consoles with feeds of a usual size.
simulator::Settings settingsOf(int consoles);

/// Simulated consoles, the real client, and a folder with store and log. Main thread.
class Drive
{
public:
    /// Consoles at further addresses come after the simulator's own.
    explicit Drive(int consoles, std::vector<std::string> further = {});
    /// Closes the store and looks whether it is as it should be.
    ~Drive();
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;

    simulator::SimulatorProcess& simulator() { return m_simulator; }
    const std::vector<CorvelRef>& consoles() const { return m_consoles; }

    /// All consoles at once, each with a save at its end, until all have settled: milliseconds for each. Expects
    /// that each settles once, and in the limit.
    std::vector<double> refresh(std::chrono::milliseconds limit = std::chrono::seconds(60));
    /// All text of each of a console's feeds, or "NA".
    std::map<std::string, std::string> feedTexts(std::size_t console) const;
    /// Lines logged since the last refresh began that hold the text.
    int logged(const std::string& text);

private:
    void checkStored() const;

    const ScratchFolder m_folder;
    simulator::SimulatorProcess m_simulator;
    std::vector<CorvelRef> m_consoles;
    std::mutex m_mutex;
    std::vector<std::string> m_lines;
    std::shared_ptr<void> m_listener;
};

} // namespace lodestar::faults

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Inventory/Feed.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Faults/Rows.h"
#include "Tests/Support/ProcessMemory.h"
#include "Tests/Support/ScratchFolder.h"

#include <array>
#include <chrono>
#include <mutex>

namespace lodestar::faults
{

inline constexpr std::array feedTypes = {ObjectType::ManagementConsole, ObjectType::ManagedSystem,
                                         ObjectType::VirtualIOServer,   ObjectType::LogicalPartition,
                                         ObjectType::ServiceableEvent,  ObjectType::Group};

double median(std::vector<double> values);
/// A fleet with feeds of a usual size.
simulator::Settings settingsFor(int consoles);

/// Simulated consoles, the real client, and a folder with store and log. Main thread.
class Drive
{
public:
    /// Consoles at further addresses stand behind the simulator's; nobody has been asked for anything yet.
    Drive(Outcome& outcome, const simulator::Settings& settings, const std::vector<std::string>& addresses = {});
    /// Closes the store and looks whether it and the log are as they should be.
    ~Drive();
    Drive(const Drive&) = delete;
    Drive& operator=(const Drive&) = delete;

    simulator::SimulatorProcess& simulator() { return m_simulator; }
    const std::vector<CorvelRef>& consoles() const { return m_consoles; }

    /// All consoles at once, each with a save at its end, until all have settled: milliseconds for each. That each
    /// settles once, and in the limit, is expected of the try under way.
    std::vector<double> refresh(std::chrono::milliseconds limit = std::chrono::seconds(60));
    bool runUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit);
    /// All text of a console's feed, or "NA".
    std::string feedText(int console, std::string_view type) const;
    std::map<std::string, std::string> feedTexts(int console) const;
    /// Lines logged since the last refresh began, or since `forgetLines`, that hold the text.
    int logged(const std::string& text);
    void forgetLines();

private:
    void add(const std::string& address);
    void noteSecrets();
    void checkStored();
    void checkLog();

    Outcome& m_outcome;
    const ScratchFolder m_folder;
    simulator::SimulatorProcess m_simulator;
    std::vector<CorvelRef> m_consoles;
    std::vector<std::string> m_secrets;
    std::mutex m_mutex;
    std::vector<std::string> m_lines;
    std::shared_ptr<void> m_listener;
};

} // namespace lodestar::faults

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Protocol.h"
#include "Simulator/Settings.h"

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace lodestar::simulator
{

/// A simulator in a process of its own, so that sanitizers and timings see only the client. When a call returns, it has
/// taken effect. Thread-safe. Calls throw `std::runtime_error` when the simulator refuses, does not answer within 30
/// seconds, or is not running.
///
/// Unless an address is set, each process has a block of addresses of its own, so that test processes can run side by
/// side.
class SimulatorProcess
{
public:
    SimulatorProcess() = default;
    /// Does what `start` does.
    explicit SimulatorProcess(const Settings& settings) { start(settings); }
    ~SimulatorProcess();
    SimulatorProcess(const SimulatorProcess&) = delete;
    SimulatorProcess& operator=(const SimulatorProcess&) = delete;

    /// Returns when every console listens. Stops a simulator that ran before.
    void start(const Settings& settings);
    /// Ends the process and waits for that. Returns its exit status, or the negated number of the signal that ended it;
    /// 0 when it was not running.
    int stop();
    pid_t pid() const { return m_pid; }

    int consoleCount() const { return static_cast<int>(m_addresses.size()); }
    const std::string& address(int console = 0) const { return m_addresses.at(static_cast<std::size_t>(console)); }
    const std::string& user() const { return m_settings.user; }
    const std::string& password() const { return m_settings.password; }

    /// "name", "name:what", "name:console" or "name:what:console"; see `Fault`.
    void setFault(std::string_view fault) { command("fault " + std::string(fault)); }
    /// Removes a fault, given as `setFault` was given it.
    void clearFault(std::string_view fault) { command("clear " + std::string(fault)); }
    void clearFaults() { command("clear"); }
    /// Milliseconds: the wait before every answer from now on, and the network's round trip on connections made from
    /// now on.
    void setLatency(int milliseconds) { command("latency " + std::to_string(milliseconds)); }
    void setRoundTrip(int milliseconds) { command("round-trip " + std::to_string(milliseconds)); }
    /// Serves the text, with status 200, in place of the console's own feed of the type. The type may also be "Metrics"
    /// or "MetricsDocument".
    void setFeed(int console, std::string_view type, std::string_view text);
    void resetFeed(int console, std::string_view type);
    /// `stopConsole` closes the connections and stops listening; `startConsole` lets the same console listen on the
    /// same address again.
    void stopConsole(int console) { command("stop " + std::to_string(console)); }
    void startConsole(int console) { command("start " + std::to_string(console)); }

    /// Moves the clock of the settings' story by so many seconds; what was due by then has happened.
    void advanceStory(int seconds) { command("advance " + std::to_string(seconds)); }

    /// The requests of one console or of all, in the order in which they arrived.
    std::vector<RecordedRequest> requests(std::optional<int> console = std::nullopt);
    void clearRequests() { command("clear-requests"); }
    /// Counts since the start.
    Statistics statistics(std::optional<int> console = std::nullopt);
    std::uint64_t handshakes(std::optional<int> console = std::nullopt) { return statistics(console).handshakes; }
    InventorySummary summary(int console = 0);
    /// The address to which reports are sent, empty when the settings ask for no receiver; and what was received, one
    /// line each.
    const std::string& receiver() const { return m_receiver; }
    std::vector<std::string> reports() { return command("reports"); }
    /// SHA-256 of the console's present certificate in lower-case hexadecimal.
    std::string certificateFingerprint(int console = 0);

private:
    /// Sends the line and returns the answer's lines before "ok".
    std::vector<std::string> command(const std::string& line);
    std::vector<std::string> linesUntil(std::string_view last);
    std::string readLine();
    void spawn(const std::vector<std::string>& arguments);
    int end();

    std::mutex m_mutex;
    Settings m_settings;
    std::vector<std::string> m_addresses;
    std::string m_receiver;
    pid_t m_pid = -1;
    int m_channel = -1;
    std::string m_received;
};

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Connection.h"
#include "Simulator/Console.h"
#include "Simulator/DelayedLink.h"
#include "Simulator/EventLoop.h"
#include "Simulator/Protocol.h"
#include "Simulator/Receiver.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace lodestar::simulator
{

/// A fleet of consoles on one event loop. Everything happens on the loop's thread. Consoles are named by their index;
/// an index without a console throws `std::out_of_range`.
class Simulator
{
public:
    /// Starts to listen. Throws `std::system_error` when an address cannot be had, and whatever `Fault::parse` and
    /// `addressAt` throw.
    Simulator(EventLoop& loop, Settings settings);
    ~Simulator();
    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;

    const Settings& settings() const { return m_settings; }
    int consoleCount() const { return static_cast<int>(m_stations.size()); }
    const std::string& address(int console) const;
    const Inventory& inventory(int console) const { return station(console).console.inventory(); }

    void setFault(const Fault& fault);
    /// Removes the fault that `setFault` was given.
    void clearFault(const Fault& fault);
    void clearFaults();
    const std::vector<Fault>& faults() const { return m_faults; }
    /// Applies to every request from now on, also on existing connections.
    void setLatency(int milliseconds) { m_settings.latency = milliseconds; }
    /// Applies to connections that are made from now on.
    void setRoundTrip(int milliseconds) { m_settings.roundTrip = milliseconds; }
    /// Serves the text in place of the console's own feed. Without a text, serves the console's own feed again.
    void setFeed(int console, const std::string& type, std::optional<std::string> text);

    /// Lets the function change what the console says from now on.
    void changeInventory(int console, const std::function<void(Inventory&)>& change);
    /// Shows another certificate to the logon than to the session check before it, and ends the session so that there
    /// is a logon. `Once` keeps the new certificate afterwards; `Always` is back to the old one for the next attempt.
    enum class Swap { Never, Once, Always };
    void swapAtLogon(int console, Swap swap);

    void closeConnections(int console) { closeConnections(station(console)); }
    /// Stops listening and closes the connections. Does nothing to a stopped console.
    void stopConsole(int console);
    /// Listens on the same address again. Does nothing to a running console.
    void startConsole(int console);

    const std::deque<RecordedRequest>& requests() const { return m_requests; }
    void clearRequests() { m_requests.clear(); }
    /// Counts since the start, of one console or of all together.
    Statistics statistics(std::optional<int> console) const;
    InventorySummary summary(int console) const;
    std::string certificateFingerprint(int console);
    /// Null when the settings ask for no receiver.
    const Receiver* receiver() const { return m_receiver.get(); }

private:
    /// A console with its sockets.
    struct Station {
        Station(Console served) : console(std::move(served)) {}
        Console console;
        int listener = -1;
        EventLoop::Watch watch = 0;
        std::unordered_map<std::uint64_t, std::unique_ptr<Connection>> connections;
        Swap swap = Swap::Never;
        std::shared_ptr<const Leaf> other; ///< what `Swap::Always` shows to logons
        bool showsOther = false;           ///< to the next connection alone
        Statistics statistics;
    };

    Station& station(int console);
    const Station& station(int console) const;
    void buildConsoles(const std::string& base);
    void listenEverywhere();
    void listenOn(Station& station);
    void stopListening(Station& station);
    void closeConnections(Station& station);
    void accept(Station& station);
    int farEnd(int descriptor);
    void adopt(Station& station, int descriptor);
    void bury(Station& station, std::uint64_t number);
    void swapLeaf(Station& station, std::uint64_t connection, Response& response);
    Response answer(Station& station, std::uint64_t connection, const Request& request);
    void record(int console, std::uint64_t connection, const SentRequest& request);
    std::vector<Fault> faultsOf(int console) const;
    void strikeConsole(const Fault& fault, Station& station);
    template <typename Do>
    void forEachStruck(const Fault& fault, const Do& act);

    EventLoop& m_loop;
    Settings m_settings;
    ContextPtr m_context;
    EventLoop::Clock::time_point m_start = EventLoop::Clock::now();
    std::vector<std::shared_ptr<const ServedInventory>> m_inventories;
    std::vector<std::unique_ptr<Station>> m_stations;
    std::vector<Fault> m_faults;
    std::uint64_t m_lastConnection = 0;
    std::uint64_t m_lastLink = 0;
    std::unordered_map<std::uint64_t, std::unique_ptr<DelayedLink>> m_links;
    std::deque<RecordedRequest> m_requests;
    /// Connections that have ended, kept until the calls that ended them return.
    std::vector<std::unique_ptr<Connection>> m_buried;
    std::vector<std::unique_ptr<DelayedLink>> m_buriedLinks;
    std::unique_ptr<Receiver> m_receiver;
};

} // namespace lodestar::simulator

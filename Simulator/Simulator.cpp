// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Simulator.h"

#include "Simulator/Listening.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <map>
#include <stdexcept>
#include <sys/epoll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodestar::simulator
{

namespace
{

/// Consoles after these share the first ones' inventories, so that thousands of consoles need little memory.
constexpr int distinctInventories = 16;

void raiseDescriptorLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

// The first address of a block of 256, from 127.16.0.2 on. The block depends on the process's number, so that processes
// seldom choose the same one; a process whose block is taken tries another.
std::string blockOfProcess(int attempt)
{
    const auto seed = static_cast<unsigned>(getpid()) * 2654435761U + static_cast<unsigned>(attempt) * 40503U;
    const unsigned block = (seed >> 8U) % (200U * 256U);
    return "127." + std::to_string(16 + block / 256) + "." + std::to_string(block % 256) + ".2";
}

/// The kind of certificate that the fault gives a console; none for other faults.
std::optional<Leaf::Kind> leafKindOf(const Fault& fault)
{
    static const std::map<std::string_view, Leaf::Kind> kinds = {{"swapCertificate", Leaf::Kind::Valid},
                                                                 {"expiredCertificate", Leaf::Kind::Expired},
                                                                 {"misnamedCertificate", Leaf::Kind::Misnamed}};
    const auto kind = kinds.find(fault.name);
    return kind != kinds.end() ? std::optional(kind->second) : std::nullopt;
}

} // namespace

Simulator::Simulator(EventLoop& loop, Settings settings)
    : m_loop(loop), m_settings(std::move(settings)), m_context(makeServerContext())
{
    raiseDescriptorLimit();
    const int inventories = std::min(m_settings.consoles, distinctInventories);
    for (int i = 0; i < inventories; ++i) {
        Inventory made = makeInventory(m_settings, static_cast<std::uint64_t>(i));
        m_inventories.push_back(std::make_shared<const ServedInventory>(std::move(made), m_settings.feedBytes));
    }
    constexpr int attempts = 64;
    const bool fixed = m_settings.address != "auto";
    for (int attempt = 1;; ++attempt) {
        buildConsoles(fixed ? m_settings.address : blockOfProcess(attempt));
        try {
            listenEverywhere();
            break;
        } catch (const std::system_error& error) {
            if (fixed || attempt == attempts || error.code() != std::errc::address_in_use) {
                throw;
            }
        }
    }
    for (const std::string& fault : m_settings.faults) {
        setFault(Fault::parse(fault));
    }
    if (!m_settings.receiver.empty()) {
        m_receiver = std::make_unique<Receiver>(m_loop, address(0), m_settings.receiver);
    }
}

Simulator::~Simulator()
{
    for (const auto& each : m_stations) {
        stopListening(*each);
        each->connections.clear();
    }
}

const std::string& Simulator::address(int console) const
{
    return station(console).console.address();
}

Simulator::Station& Simulator::station(int console)
{
    return *m_stations.at(static_cast<std::size_t>(console));
}

const Simulator::Station& Simulator::station(int console) const
{
    return *m_stations.at(static_cast<std::size_t>(console));
}

void Simulator::buildConsoles(const std::string& base)
{
    m_stations.clear();
    for (int i = 0; i < m_settings.consoles; ++i) {
        const auto inventory = m_inventories.at(static_cast<std::size_t>(i % distinctInventories));
        m_stations.push_back(std::make_unique<Station>(Console(m_settings, i, addressAt(base, i), inventory)));
    }
}

void Simulator::listenEverywhere()
{
    try {
        for (const auto& each : m_stations) {
            listenOn(*each);
        }
    } catch (const std::system_error&) {
        for (const auto& each : m_stations) {
            stopListening(*each);
        }
        throw;
    }
}

void Simulator::listenOn(Station& station)
{
    if (station.listener < 0) {
        station.listener = listeningSocket(station.console.address(), consolePort);
        station.watch = m_loop.watch(station.listener, EPOLLIN, [this, &station](std::uint32_t) { accept(station); });
    }
}

void Simulator::stopListening(Station& station)
{
    if (station.listener >= 0) {
        m_loop.forget(station.watch);
        ::close(station.listener);
        station.listener = -1;
    }
}

void Simulator::closeConnections(Station& station)
{
    while (!station.connections.empty()) {
        station.connections.begin()->second->close();
    }
}

void Simulator::stopConsole(int console)
{
    stopListening(station(console));
    closeConnections(station(console));
}

void Simulator::startConsole(int console)
{
    listenOn(station(console));
}

void Simulator::accept(Station& station)
{
    m_buried.clear();
    m_buriedLinks.clear();
    while (station.listener >= 0) {
        const int descriptor = acceptedSocket(station.listener);
        if (descriptor < 0) {
            return;
        }
        adopt(station, m_settings.roundTrip > 0 ? farEnd(descriptor) : descriptor);
    }
}

/// Puts a link with the network's delay behind an accepted connection and returns the console's end of it.
int Simulator::farEnd(int descriptor)
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        ::close(descriptor);
        throw std::system_error(errno, std::generic_category(), "socketpair");
    }
    const std::uint64_t number = ++m_lastLink;
    const DelayedLink::Distance distance{std::chrono::milliseconds(m_settings.roundTrip), m_settings.stalls};
    auto link = std::make_unique<DelayedLink>(m_loop, descriptor, ends[0], distance, number, [this, number] {
        if (auto node = m_links.extract(number)) {
            m_buriedLinks.push_back(std::move(node.mapped()));
        }
    });
    m_links.emplace(number, std::move(link));
    return ends[1];
}

void Simulator::adopt(Station& station, int descriptor)
{
    SslPtr ssl(SSL_new(m_context.get()));
    const auto leaf = std::exchange(station.showsOther, false) ? station.other : station.console.leaf();
    SSL_use_certificate(ssl.get(), leaf->certificate.get());
    SSL_use_PrivateKey(ssl.get(), leaf->key.get());
    const std::uint64_t number = ++m_lastConnection;
    ++station.statistics.connections;
    Connection::Callbacks callbacks;
    callbacks.answer = [this, &station, number](const Request& request) { return answer(station, number, request); };
    callbacks.handshaken = [&station] { ++station.statistics.handshakes; };
    callbacks.closed = [this, &station, number] { bury(station, number); };
    auto connection = std::make_unique<Connection>(m_loop, descriptor, std::move(ssl), std::move(callbacks));
    Connection& added = *connection;
    station.connections.emplace(number, std::move(connection));
    const auto isSilence = [](const Fault& each) { return each.name == "silentAfterAccept"; };
    if (std::ranges::any_of(faultsOf(station.console.index()), isSilence)) {
        added.fallSilent();
    }
}

void Simulator::bury(Station& station, std::uint64_t number)
{
    if (auto node = station.connections.extract(number)) {
        m_buried.push_back(std::move(node.mapped()));
    }
}

Response Simulator::answer(Station& station, std::uint64_t connection, const Request& request)
{
    m_buried.clear();
    const int console = station.console.index();
    ++station.statistics.requests;
    record(console, connection, request);
    const bool swaps =
        station.swap != Swap::Never && station.console.kindOf(request).area == RequestKind::Area::SessionCheck;
    if (swaps) {
        station.console.expireSessions();
    }
    Response response = station.console.answer(request, faultsOf(console), address((console + 1) % consoleCount()));
    if (swaps) {
        swapLeaf(station, connection, response);
    }
    response.delay = std::chrono::milliseconds(m_settings.latency);
    return response;
}

// Leaves the client no other connection to log on over than one that shows the other certificate.
void Simulator::swapLeaf(Station& station, std::uint64_t connection, Response& response)
{
    response.ending = Ending::Close;
    if (station.swap == Swap::Always) {
        station.showsOther = true;
    } else {
        station.console.changeLeaf(Leaf::Kind::Valid);
        station.swap = Swap::Never;
    }
    std::vector<Connection*> others;
    for (const auto& [number, each] : station.connections) {
        if (number != connection) {
            others.push_back(each.get());
        }
    }
    for (Connection* each : others) {
        each->close();
    }
}

void Simulator::swapAtLogon(int console, Swap swap)
{
    Station& swapping = station(console);
    swapping.swap = swap;
    swapping.showsOther = false;
    if (swap == Swap::Always && !swapping.other) {
        swapping.other = makeLeaf(swapping.console.address(), Leaf::Kind::Valid);
    }
}

void Simulator::changeInventory(int console, const std::function<void(Inventory&)>& change)
{
    station(console).console.changeInventory(change);
}

void Simulator::record(int console, std::uint64_t connection, const SentRequest& request)
{
    if (m_settings.recordCap == 0) {
        return;
    }
    if (m_requests.size() >= m_settings.recordCap) {
        m_requests.pop_front();
    }
    const auto age = std::chrono::duration_cast<std::chrono::milliseconds>(EventLoop::Clock::now() - m_start);
    m_requests.push_back({request, console, connection, age.count()});
}

std::vector<Fault> Simulator::faultsOf(int console) const
{
    std::vector<Fault> faults;
    std::ranges::copy_if(m_faults, std::back_inserter(faults),
                         [&](const Fault& each) { return !each.console || *each.console == console; });
    return faults;
}

template <typename Do>
void Simulator::forEachStruck(const Fault& fault, const Do& act)
{
    if (fault.console) {
        act(station(*fault.console));
        return;
    }
    for (const auto& each : m_stations) {
        act(*each);
    }
}

void Simulator::setFault(const Fault& fault)
{
    forEachStruck(fault, [&](Station& each) { strikeConsole(fault, each); });
    const bool once = fault.name == "expireSession" || fault.name == "swapCertificate";
    if (!once && std::ranges::find(m_faults, fault) == m_faults.end()) {
        m_faults.push_back(fault);
    }
}

// The immediate effect of a fault; later requests are struck elsewhere.
void Simulator::strikeConsole(const Fault& fault, Station& station)
{
    if (fault.name == "expireSession") {
        station.console.expireSessions();
    } else if (fault.name == "closePort") {
        stopListening(station);
        closeConnections(station);
    } else if (const auto kind = leafKindOf(fault)) {
        station.console.changeLeaf(*kind);
        closeConnections(station);
    }
}

void Simulator::clearFault(const Fault& fault)
{
    const auto kept = std::remove(m_faults.begin(), m_faults.end(), fault);
    if (kept == m_faults.end()) {
        return;
    }
    m_faults.erase(kept, m_faults.end());
    forEachStruck(fault, [&](Station& each) {
        if (fault.name == "closePort") {
            listenOn(each);
        } else if (leafKindOf(fault)) {
            each.console.changeLeaf(Leaf::Kind::Valid);
            closeConnections(each);
        }
    });
}

void Simulator::clearFaults()
{
    while (!m_faults.empty()) {
        clearFault(Fault(m_faults.back()));
    }
}

void Simulator::setFeed(int console, const std::string& type, std::optional<std::string> text)
{
    const bool isMetrics = type == "Metrics" || type == "MetricsDocument";
    if (!isMetrics && std::ranges::find(feedTypes, type) == feedTypes.end()) {
        throw std::invalid_argument("no feed is called " + type);
    }
    if (text) {
        station(console).console.setFeed(type, std::move(*text));
    } else {
        station(console).console.resetFeed(type);
    }
}

Statistics Simulator::statistics(std::optional<int> console) const
{
    if (console) {
        return station(*console).statistics;
    }
    Statistics sum;
    for (const auto& each : m_stations) {
        sum.connections += each->statistics.connections;
        sum.handshakes += each->statistics.handshakes;
        sum.requests += each->statistics.requests;
    }
    return sum;
}

InventorySummary Simulator::summary(int console) const
{
    return summaryOf(station(console).console.inventory());
}

std::string Simulator::certificateFingerprint(int console)
{
    return station(console).console.leaf()->fingerprint();
}

} // namespace lodestar::simulator

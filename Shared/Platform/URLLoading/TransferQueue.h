// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace lodestar
{

class Transfer;

/// Transfers that wait to start, and what is known of the connections to their servers. Servers take turns, so that no
/// server waits for another's many transfers. Persons' transfers go before all others. Not thread-safe.
class TransferQueue
{
public:
    using Clock = std::chrono::steady_clock;

    bool empty() const { return m_count == 0; }
    void push(std::shared_ptr<Transfer> transfer);
    /// False when the transfer is not in the queue.
    bool erase(const std::shared_ptr<Transfer>& transfer);

    /// What a transfer does when all its server's connections are in use. `Make`: it may make another. `Have`: it waits
    /// for one to come free, since a new one costs a handshake. A person's transfer waits in either case, but not for
    /// long: a connection that comes free answers two round trips sooner than a new one.
    enum class Connections { Have, Make };
    /// Whose transfers to take: everybody's, or only those that a person waits for.
    enum class Whose { Everybodys, Persons };
    /// Tells how many connections to a server were made ahead or are being made; the queue does not know these.
    using Ahead = std::function<std::size_t(const std::string& server)>;
    using Want = std::function<void(const std::string& server, std::size_t connections)>;

    /// Takes the next transfer out; null when none may start.
    std::shared_ptr<Transfer> take(Connections connections, Whose whose, const Ahead& ready, Clock::time_point now);

    /// Call `didStart` for every transfer that starts, and `didEnd` when it ends.
    void didStart(const Transfer& transfer);
    void didEnd(const Transfer& transfer);
    /// Whether a connection to the server counts as free; the server may have closed it unnoticed.
    bool hasFreeConnection(const std::string& server) const;
    /// The number of free connections to all servers together.
    std::size_t freeConnections() const { return m_free; }

    /// Says that so many transfers to the server will be pushed soon; a negative number takes that back.
    void expect(const std::string& server, int transfers);
    bool expectsAny() const { return m_expected > 0; }
    /// Calls `want` for each server whose expected transfers need more connections than there are, with the number that
    /// is missing.
    void forEachExpectedWant(const Ahead& ahead, const Want& want) const;
    /// Does the same for persons' transfers that wait now.
    void forEachPersonsWant(const Ahead& ahead, const Want& want) const;

private:
    struct Server {
        std::deque<std::shared_ptr<Transfer>> waiting; ///< persons' transfers first
        std::size_t persons = 0;                       ///< how many of `waiting` are persons'
        std::size_t running = 0;
        std::size_t free = 0; ///< free connections
        std::size_t expected = 0;
    };
    using Servers = std::unordered_map<std::string, Server>;
    using Turn = Servers::value_type*;

    std::shared_ptr<Transfer> takeFrom(const std::deque<Turn>::iterator& turn);
    void forgetIfUnused(const std::string& server);

    Servers m_servers;
    std::deque<Turn> m_turns; ///< servers with waiting transfers
    std::unordered_set<const Transfer*> m_onFreeConnections;
    std::size_t m_count = 0;
    std::size_t m_persons = 0;
    std::size_t m_expected = 0;
    std::size_t m_free = 0;
};

} // namespace lodestar

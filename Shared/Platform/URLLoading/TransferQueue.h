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

/// Transfers that wait for their turn, and what is known of the connections to their servers. Servers take turns, so
/// that none waits for another's many; what a person waits for goes before everything else. Not thread-safe.
class TransferQueue
{
public:
    using Clock = std::chrono::steady_clock;

    bool empty() const { return m_count == 0; }
    void push(std::shared_ptr<Transfer> transfer);
    /// False when it does not wait.
    bool erase(const std::shared_ptr<Transfer>& transfer);

    /// Whether a transfer may have a connection made although its server has some, which are all in use. Otherwise it
    /// waits for one of those, since a new one costs a handshake. What a person waits for does so in any case, but not
    /// for long: one that comes free answers two round trips sooner than one that is made.
    enum class Connections { Have, Make };
    /// Who is to be taken: everybody or only what a person waits for.
    enum class Whose { Everybodys, Persons };
    /// Says how many connections to a server are about to be there besides those that the queue knows of.
    using Ahead = std::function<std::size_t(const std::string& server)>;
    using Want = std::function<void(const std::string& server, std::size_t connections)>;

    /// Takes the next one out; null when there is none that may go.
    std::shared_ptr<Transfer> take(Connections connections, Whose whose, const Ahead& ready, Clock::time_point now);

    /// Every transfer that runs is to be told, and told of again when it has ended.
    void didStart(const Transfer& transfer);
    void didEnd(const Transfer& transfer);
    /// Whether a connection to the server is free, as far as is known: a server may have closed it.
    bool hasFreeConnection(const std::string& server) const;
    /// How many are free at all servers together.
    std::size_t freeConnections() const { return m_free; }

    /// So many transfers to the server are soon to be pushed; negative to take that back.
    void expect(const std::string& server, int transfers);
    bool expectsAny() const { return m_expected > 0; }
    /// Calls the function with every server that will want so many more connections than there are.
    void forEachExpectedWant(const Ahead& ahead, const Want& want) const;
    /// The same for what persons wait for by now.
    void forEachPersonsWant(const Ahead& ahead, const Want& want) const;

private:
    struct Server {
        std::deque<std::shared_ptr<Transfer>> waiting; ///< persons' first
        std::size_t persons = 0;                       ///< of those that wait
        std::size_t running = 0;
        std::size_t free = 0; ///< connections
        std::size_t expected = 0;
    };
    using Servers = std::unordered_map<std::string, Server>;
    using Turn = Servers::value_type*;

    std::shared_ptr<Transfer> takeFrom(const std::deque<Turn>::iterator& turn);
    void forgetIfUnused(const std::string& server);

    Servers m_servers;
    std::deque<Turn> m_turns; ///< servers with transfers that wait
    std::unordered_set<const Transfer*> m_onFreeConnections;
    std::size_t m_count = 0;
    std::size_t m_persons = 0;
    std::size_t m_expected = 0;
    std::size_t m_free = 0;
};

} // namespace lodestar

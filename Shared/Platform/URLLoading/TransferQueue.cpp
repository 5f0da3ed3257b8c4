// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/TransferQueue.h"

#include "Platform/URLLoading/Transfer.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

bool isPersons(const Transfer& transfer)
{
    return transfer.urgency() == Urgency::Person;
}

} // namespace

void TransferQueue::push(std::shared_ptr<Transfer> transfer)
{
    const auto turn = m_servers.try_emplace(transfer->server()).first;
    Server& server = turn->second;
    if (server.waiting.empty()) {
        m_turns.push_back(&*turn);
    }
    ++m_count;
    if (isPersons(*transfer)) {
        server.waiting.insert(server.waiting.begin() + static_cast<std::ptrdiff_t>(server.persons++),
                              std::move(transfer));
        ++m_persons;
    } else {
        server.waiting.push_back(std::move(transfer));
    }
}

bool TransferQueue::erase(const std::shared_ptr<Transfer>& transfer)
{
    const auto found = m_servers.find(transfer->server());
    if (found == m_servers.end() || std::erase(found->second.waiting, transfer) == 0) {
        return false;
    }
    --m_count;
    if (isPersons(*transfer)) {
        --m_persons;
        --found->second.persons;
    }
    if (found->second.waiting.empty()) {
        std::erase(m_turns, &*found);
        forgetIfUnused(transfer->server());
    }
    return true;
}

std::shared_ptr<Transfer> TransferQueue::take(Connections connections, Whose whose, const Ahead& ready,
                                              Clock::time_point now)
{
    const auto hasConnection = [&ready](Turn turn) {
        const Server& server = turn->second;
        return server.running == 0 || server.free > 0 || ready(turn->first) > 0;
    };
    if (m_persons > 0) {
        const auto turn = std::ranges::find_if(m_turns, [&](Turn one) {
            const Server& server = one->second;
            return server.persons > 0 && (hasConnection(one) || now > server.waiting.front()->patienceEnd());
        });
        if (turn != m_turns.end()) {
            return takeFrom(turn);
        }
    }
    if (whose == Whose::Persons) {
        return nullptr;
    }
    const auto turn = std::ranges::find_if(m_turns, [&](Turn one) {
        return one->second.persons == 0 && (connections == Connections::Make || hasConnection(one));
    });
    return turn != m_turns.end() ? takeFrom(turn) : nullptr;
}

std::shared_ptr<Transfer> TransferQueue::takeFrom(const std::deque<Turn>::iterator& turn)
{
    const Turn taken = *turn;
    Server& server = taken->second;
    std::shared_ptr<Transfer> transfer = std::move(server.waiting.front());
    server.waiting.pop_front();
    m_turns.erase(turn);
    if (!server.waiting.empty()) {
        m_turns.push_back(taken);
    }
    --m_count;
    if (isPersons(*transfer)) {
        --m_persons;
        --server.persons;
    }
    return transfer;
}

void TransferQueue::didStart(const Transfer& transfer)
{
    Server& server = m_servers[transfer.server()];
    ++server.running;
    if (server.free > 0) {
        --server.free;
        --m_free;
        m_onFreeConnections.insert(&transfer);
    }
}

void TransferQueue::didEnd(const Transfer& transfer)
{
    const auto found = m_servers.find(transfer.server());
    if (found == m_servers.end()) {
        return;
    }
    Server& server = found->second;
    --server.running;
    const bool tookFree = m_onFreeConnections.erase(&transfer) != 0;
    if (tookFree && transfer.madeConnection()) {
        // The server had closed the connection that counted as free, so it has probably closed the others, too.
        m_free -= std::exchange(server.free, 0);
    }
    if (transfer.leavesConnection()) {
        ++server.free;
        ++m_free;
    }
    forgetIfUnused(transfer.server());
}

bool TransferQueue::hasFreeConnection(const std::string& server) const
{
    const auto found = m_servers.find(server);
    return found != m_servers.end() && found->second.free > 0;
}

void TransferQueue::expect(const std::string& server, int transfers)
{
    m_servers[server].expected += static_cast<std::size_t>(transfers);
    m_expected += static_cast<std::size_t>(transfers);
    forgetIfUnused(server);
}

void TransferQueue::forEachExpectedWant(const Ahead& ahead, const Want& want) const
{
    if (m_expected == 0) {
        return;
    }
    for (const auto& [name, server] : m_servers) {
        const std::size_t there = server.expected > 0 ? server.free + ahead(name) : 0;
        if (server.expected > there) {
            want(name, server.expected - there);
        }
    }
}

void TransferQueue::forEachPersonsWant(const Ahead& ahead, const Want& want) const
{
    if (m_persons == 0) {
        return;
    }
    for (const Turn turn : m_turns) {
        const auto& [name, server] = *turn;
        const std::size_t there = server.persons > 0 ? server.free + ahead(name) : 0;
        if (server.persons > there) {
            want(name, server.persons - there);
        }
    }
}

void TransferQueue::forgetIfUnused(const std::string& server)
{
    const auto found = m_servers.find(server);
    if (found != m_servers.end() && found->second.waiting.empty() && found->second.running == 0 &&
        found->second.free == 0 && found->second.expected == 0) {
        m_servers.erase(found);
    }
}

} // namespace lodestar

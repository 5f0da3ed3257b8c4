// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/ServerTrust.h"

#include <map>
#include <mutex>
#include <set>
#include <utility>

namespace lodestar
{

struct ServerTrust::State {
    using Server = std::pair<std::string, int>;
    mutable std::mutex mutex;
    std::map<Server, Fingerprint> leaves;
    std::set<Server> refused;
    RefusalHandler refusalHandler;
};

ServerTrust::ServerTrust() : m_state(new State) {}

ServerTrust& ServerTrust::shared()
{
    // Never destroyed: transfers may still ask while the process ends.
    static ServerTrust* const trust = new ServerTrust;
    return *trust;
}

void ServerTrust::remember(const std::string& host, int port, const Fingerprint& leaf)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->leaves.insert_or_assign({host, port}, leaf);
    m_state->refused.erase({host, port});
}

bool ServerTrust::isRemembered(const std::string& host, int port, const Fingerprint& leaf) const
{
    return remembered(host, port) == leaf;
}

std::optional<ServerTrust::Fingerprint> ServerTrust::remembered(const std::string& host, int port) const
{
    const std::lock_guard lock(m_state->mutex);
    const auto found = m_state->leaves.find({host, port});
    return found != m_state->leaves.end() ? std::optional(found->second) : std::nullopt;
}

void ServerTrust::forgetAll()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->leaves.clear();
    m_state->refused.clear();
}

void ServerTrust::setRefusalHandler(RefusalHandler handler)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->refusalHandler = std::move(handler);
}

void ServerTrust::refuse(const std::string& host, int port, const std::string& reason)
{
    RefusalHandler handler;
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->refused.insert({host, port});
        handler = m_state->refusalHandler;
    }
    if (handler) {
        handler(host, port, reason);
    }
}

bool ServerTrust::wantsFreshHandshake(const std::string& host, int port) const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->refused.contains({host, port});
}

} // namespace lodestar

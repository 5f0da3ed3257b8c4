// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/ConnectionsAhead.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lodestar
{

namespace
{

// Longer than a logon takes, shorter than servers wait for the end of a handshake.
constexpr std::chrono::seconds lifetime{12};

} // namespace

void ConnectionsAhead::open(CURLM* multi, const std::string& server, Clock::time_point now)
{
    const auto failed = m_failedUntil.find(server);
    if (!HandshakeHold::isPossible || (failed != m_failedUntil.end() && now < failed->second)) {
        return;
    }
    One one{now + lifetime, ConnectionHandle::make(server + "/", ConnectionHandle::Handshake::Held)};
    if (one.handle.easy != nullptr && curl().multiAddHandle(multi, one.handle.easy.get()) == CURLM_OK) {
        m_nextClose = std::min(m_nextClose, one.closes);
        m_servers[server].push_back(std::move(one));
        ++m_count;
    }
}

std::optional<ConnectionHandle> ConnectionsAhead::take(const std::string& server)
{
    const auto found = m_servers.find(server);
    if (found == m_servers.end()) {
        return std::nullopt;
    }
    OfServer& open = found->second;
    auto taken = std::ranges::find_if(open, [](const One& one) { return one.handle.hold->reached; });
    if (taken == open.end()) {
        taken = open.begin();
    }
    ConnectionHandle handle = std::move(taken->handle);
    open.erase(taken);
    --m_count;
    if (open.empty()) {
        m_servers.erase(found);
    }
    handle.hold->release();
    return handle;
}

std::size_t ConnectionsAhead::count(const std::string& server) const
{
    const auto found = m_count > 0 ? m_servers.find(server) : m_servers.end();
    return found != m_servers.end() ? found->second.size() : 0;
}

bool ConnectionsAhead::hasReady(const std::string& server) const
{
    const auto found = m_servers.find(server);
    return found != m_servers.end() &&
           std::ranges::any_of(found->second, [](const One& one) { return one.handle.hold->reached; });
}

void ConnectionsAhead::failed(CURL* easy, Clock::time_point now)
{
    if (std::erase_if(m_closing, [easy](const ConnectionHandle& one) { return one.easy.get() == easy; }) != 0) {
        return;
    }
    for (auto& [server, open] : m_servers) {
        if (std::erase_if(open, [easy](const One& one) { return one.handle.easy.get() == easy; }) != 0) {
            m_failedUntil.insert_or_assign(server, now + lifetime);
            --m_count;
            if (open.empty()) {
                m_servers.erase(std::string(server));
            }
            return;
        }
    }
}

bool ConnectionsAhead::closeOld(CURLM* multi, Clock::time_point now)
{
    if (now < m_nextClose) {
        return false;
    }
    m_nextClose = Clock::time_point::max();
    for (auto server = m_servers.begin(); server != m_servers.end();) {
        OfServer& open = server->second;
        while (!open.empty() && open.front().closes <= now) {
            ConnectionHandle& handle = open.front().handle;
            if (handle.hold->reached) {
                handle.hold->release();
                m_closing.push_back(std::move(handle));
            } else {
                curl().multiRemoveHandle(multi, handle.easy.get());
            }
            open.erase(open.begin());
            --m_count;
        }
        if (!open.empty()) {
            m_nextClose = std::min(m_nextClose, open.front().closes);
        }
        server = open.empty() ? m_servers.erase(server) : std::next(server);
    }
    std::erase_if(m_failedUntil, [now](const auto& failed) { return failed.second <= now; });
    return !m_closing.empty();
}

} // namespace lodestar

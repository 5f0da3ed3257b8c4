// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/ConnectionHandle.h"

#include <chrono>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace lodestar
{

/// Connections that are made before the requests that they will carry are known, so that those need not wait for them.
/// Nothing but the greeting of the handshake is sent on them. One that is not taken in time is closed. One thread.
class ConnectionsAhead
{
public:
    using Clock = std::chrono::steady_clock;

    /// Servers are named as `Transfer::server` names them. Nothing is opened to a server to which it has failed of
    /// late.
    void open(CURLM* multi, const std::string& server, Clock::time_point now);
    /// The one that is furthest, released; it stays with the multi handle. None when there is none.
    std::optional<ConnectionHandle> take(const std::string& server);

    std::size_t count() const { return m_count; }
    std::size_t count(const std::string& server) const;
    /// Whether one only waits to be taken.
    bool hasReady(const std::string& server) const;

    /// libcurl's word that a handle has failed: whoever needs the server finds out why.
    void failed(CURL* easy, Clock::time_point now);
    /// Closes what nobody has taken. True when libcurl has something to do for that at once.
    bool closeOld(CURLM* multi, Clock::time_point now);
    /// When `closeOld` may have work.
    Clock::time_point nextClose() const { return m_nextClose; }

private:
    struct One {
        Clock::time_point closes;
        ConnectionHandle handle;
    };
    using OfServer = std::vector<One>; ///< in the order of their opening

    std::unordered_map<std::string, OfServer> m_servers;
    std::vector<ConnectionHandle> m_closing; ///< released, to end without a request
    std::unordered_map<std::string, Clock::time_point> m_failedUntil;
    std::size_t m_count = 0;
    Clock::time_point m_nextClose = Clock::time_point::max();
};

} // namespace lodestar

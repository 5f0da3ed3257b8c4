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

/// Connections made before their requests are known, so that the requests need not wait for a handshake. Only the
/// handshake's greeting is sent on them. A connection that no request takes in time is closed. One thread.
class ConnectionsAhead
{
public:
    using Clock = std::chrono::steady_clock;

    /// Servers have the names that `Transfer::server` gives them. Opens nothing to a server to which a connection
    /// failed a short while ago.
    void open(CURLM* multi, const std::string& server, Clock::time_point now);
    /// Takes the connection that is furthest, its handshake released; the connection stays with the multi handle. None
    /// when there is no connection to the server.
    std::optional<ConnectionHandle> take(const std::string& server);

    std::size_t count() const { return m_count; }
    std::size_t count(const std::string& server) const;
    /// Whether a connection's handshake has reached the hold, so that the connection can be taken without a wait.
    bool hasReady(const std::string& server) const;

    /// Call when libcurl reports that a handle failed. The failure is not reported further: the next transfer to the
    /// server meets it itself.
    void failed(CURL* easy, Clock::time_point now);
    /// Closes connections that nobody took in time. True when libcurl must run at once to do so.
    bool closeOld(CURLM* multi, Clock::time_point now);
    /// The earliest time at which `closeOld` may have work.
    Clock::time_point nextClose() const { return m_nextClose; }

private:
    struct One {
        Clock::time_point closes;
        ConnectionHandle handle;
    };
    using OfServer = std::vector<One>; ///< in the order of opening

    std::unordered_map<std::string, OfServer> m_servers;
    std::vector<ConnectionHandle> m_closing; ///< released; they end without a request
    std::unordered_map<std::string, Clock::time_point> m_failedUntil;
    std::size_t m_count = 0;
    Clock::time_point m_nextClose = Clock::time_point::max();
};

} // namespace lodestar

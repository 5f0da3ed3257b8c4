// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/EventLoop.h"
#include "Simulator/Http.h"
#include "Simulator/Leaf.h"

#include <cstdint>
#include <functional>
#include <string>

namespace lodestar::simulator
{

/// One accepted connection. It does the TLS work, takes one request after another, and sends answers as fast as the
/// client reads them.
class Connection
{
public:
    struct Callbacks {
        std::function<Response(const Request&)> answer;
        std::function<void()> handshaken;
        /// Called when the connection has ended. It may be destroyed then, but not within this call.
        std::function<void()> closed;
    };

    /// Owns the descriptor.
    Connection(EventLoop& loop, int descriptor, SslPtr ssl, Callbacks callbacks);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// From now on accepts nothing and sends nothing, not even a handshake.
    void fallSilent();
    /// Closes at once, as a console that goes away: drops whatever is still to be sent.
    void close();

private:
    enum class Phase { Handshake, Request, Wait, Head, Body, Silent, Closed };

    void onEvents(std::uint32_t events);
    void pump();
    bool handshake();
    bool readRequest();
    void begin(const Request& request);
    bool send();
    bool sendByteWise();
    bool refill();
    void finishResponse();
    void end(bool reset);
    /// Waits for what the TLS layer needs after a call returned `result`. Ends the connection when no wait would help.
    void await(int result);

    EventLoop& m_loop;
    int m_descriptor;
    SslPtr m_ssl;
    Callbacks m_callbacks;
    EventLoop::Watch m_watch = 0;
    Phase m_phase = Phase::Handshake;
    RequestParser m_parser;
    Response m_response;
    BodyPtr m_head;
    std::uint64_t m_bodySent = 0;
    std::string m_out;
    std::size_t m_outAt = 0;
    bool m_keepAlive = true;
};

} // namespace lodestar::simulator

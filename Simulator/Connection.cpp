// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Connection.h"

#include <openssl/err.h>

#include <algorithm>
#include <array>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace lodestar::simulator
{

namespace
{

constexpr std::size_t recordSize = 16384;
/// After this many bytes the other connections have their turn.
constexpr std::size_t turnSize = 16 * recordSize;
constexpr std::chrono::milliseconds trickleInterval{1000};

} // namespace

Connection::Connection(EventLoop& loop, int descriptor, SslPtr ssl, Callbacks callbacks)
    : m_loop(loop),
      m_descriptor(descriptor),
      m_ssl(std::move(ssl)),
      m_callbacks(std::move(callbacks)),
      m_watch(loop.watch(descriptor, EPOLLIN, [this](std::uint32_t events) { onEvents(events); }))
{
    SSL_set_fd(m_ssl.get(), descriptor);
    SSL_set_accept_state(m_ssl.get());
}

Connection::~Connection()
{
    if (m_phase != Phase::Closed) {
        m_loop.forget(m_watch);
        ::close(m_descriptor);
    }
}

void Connection::fallSilent()
{
    m_phase = Phase::Silent;
    m_loop.change(m_watch, EPOLLRDHUP);
}

void Connection::close()
{
    if (m_phase != Phase::Closed) {
        end(false);
    }
}

void Connection::onEvents(std::uint32_t events)
{
    const bool idle = m_phase == Phase::Wait || m_phase == Phase::Silent;
    if ((events & (EPOLLHUP | EPOLLERR)) != 0 || (idle && (events & EPOLLRDHUP) != 0)) {
        end(false);
        return;
    }
    pump();
}

void Connection::pump()
{
    bool goOn = true;
    while (goOn) {
        switch (m_phase) {
        case Phase::Handshake:
            goOn = handshake();
            break;
        case Phase::Request:
            goOn = readRequest();
            break;
        case Phase::Head:
        case Phase::Body:
            goOn = m_response.trickled ? sendByteWise() : send();
            break;
        case Phase::Wait:
        case Phase::Silent:
        case Phase::Closed:
            goOn = false;
            break;
        }
    }
}

void Connection::await(int result)
{
    switch (SSL_get_error(m_ssl.get(), result)) {
    case SSL_ERROR_WANT_READ:
        m_loop.change(m_watch, EPOLLIN);
        break;
    case SSL_ERROR_WANT_WRITE:
        m_loop.change(m_watch, EPOLLOUT);
        break;
    default:
        end(false);
    }
}

bool Connection::handshake()
{
    ERR_clear_error();
    const int result = SSL_accept(m_ssl.get());
    if (result != 1) {
        await(result);
        return false;
    }
    m_callbacks.handshaken();
    m_phase = Phase::Request;
    return true;
}

bool Connection::readRequest()
{
    Request request;
    switch (m_parser.next(request)) {
    case RequestParser::Outcome::Complete:
        begin(request);
        return true;
    case RequestParser::Outcome::Bad:
        m_response = Response();
        m_response.status = 400;
        m_response.ending = Ending::Close;
        m_head = takeHead(m_response);
        m_bodySent = 0;
        m_phase = Phase::Head;
        return true;
    case RequestParser::Outcome::Incomplete:
        break;
    }
    std::array<char, recordSize> bytes{};
    ERR_clear_error();
    const int result = SSL_read(m_ssl.get(), bytes.data(), static_cast<int>(bytes.size()));
    if (result <= 0) {
        await(result);
        return false;
    }
    m_parser.append(std::string_view(bytes.data(), static_cast<std::size_t>(result)));
    return true;
}

void Connection::begin(const Request& request)
{
    m_response = m_callbacks.answer(request);
    m_keepAlive = request.keepsConnection();
    if (m_response.ending == Ending::Silence) {
        fallSilent();
        return;
    }
    if (!m_keepAlive && m_response.ending == Ending::KeepAlive) {
        m_response.ending = Ending::Close;
    }
    m_head = takeHead(m_response);
    m_bodySent = 0;
    m_phase = Phase::Head;
    if (m_response.delay.count() > 0) {
        m_phase = Phase::Wait;
        m_loop.change(m_watch, EPOLLRDHUP);
        m_loop.after(m_response.delay, m_watch, [this] {
            m_phase = Phase::Head;
            pump();
        });
    }
}

// Fills `m_out` with the next bytes of head or body; false when the answer has no more.
bool Connection::refill()
{
    m_outAt = 0;
    m_out.resize(recordSize);
    if (m_phase == Phase::Head) {
        m_out.resize(m_head->read(m_out.data(), m_out.size()));
        if (!m_out.empty()) {
            return true;
        }
        m_phase = Phase::Body;
        m_out.resize(recordSize);
    }
    const std::uint64_t left = m_response.stopAfter - m_bodySent;
    m_out.resize(m_response.body->read(m_out.data(), std::min<std::uint64_t>(m_out.size(), left)));
    m_bodySent += m_out.size();
    return !m_out.empty();
}

bool Connection::send()
{
    std::size_t sent = 0;
    while (sent < turnSize) {
        if (m_outAt == m_out.size() && !refill()) {
            finishResponse();
            return true;
        }
        ERR_clear_error();
        const int result = SSL_write(m_ssl.get(), m_out.data() + m_outAt, static_cast<int>(m_out.size() - m_outAt));
        if (result <= 0) {
            await(result);
            return false;
        }
        m_outAt += static_cast<std::size_t>(result);
        sent += static_cast<std::size_t>(result);
    }
    m_loop.change(m_watch, EPOLLOUT);
    return false;
}

bool Connection::sendByteWise()
{
    if (m_outAt == m_out.size() && !refill()) {
        finishResponse();
        return true;
    }
    ERR_clear_error();
    const int result = SSL_write(m_ssl.get(), m_out.data() + m_outAt, 1);
    if (result <= 0) {
        await(result);
        return false;
    }
    ++m_outAt;
    const Phase phase = m_phase;
    m_phase = Phase::Wait;
    m_loop.change(m_watch, EPOLLRDHUP);
    m_loop.after(trickleInterval, m_watch, [this, phase] {
        m_phase = phase;
        pump();
    });
    return false;
}

void Connection::finishResponse()
{
    const Ending ending = m_response.ending;
    m_response = Response();
    m_head.reset();
    // An idle connection keeps no buffers, since there may be thousands of connections.
    m_out = std::string();
    m_outAt = 0;
    if (ending == Ending::KeepAlive) {
        m_phase = Phase::Request;
    } else {
        end(ending == Ending::Reset);
    }
}

void Connection::end(bool reset)
{
    if (reset) {
        const linger hard{1, 0};
        setsockopt(m_descriptor, SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
    } else if (SSL_is_init_finished(m_ssl.get()) != 0) {
        ERR_clear_error();
        SSL_shutdown(m_ssl.get());
    }
    m_loop.forget(m_watch);
    ::close(m_descriptor);
    m_phase = Phase::Closed;
    m_callbacks.closed();
}

} // namespace lodestar::simulator

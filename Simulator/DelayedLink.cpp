// SPDX-License-Identifier: Apache-2.0
#include "Simulator/DelayedLink.h"

#include <algorithm>
#include <cerrno>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace lodestar::simulator
{

namespace
{

constexpr std::size_t pieceSize = 64UL * 1024;

} // namespace

DelayedLink::DelayedLink(EventLoop& loop, int client, int console, Distance distance, std::uint64_t number,
                         std::function<void()> ended)
    : m_loop(loop),
      m_distance(distance),
      m_made(EventLoop::Clock::now() + distance.roundTrip),
      m_ended(std::move(ended)),
      m_chance(static_cast<std::mt19937::result_type>(number))
{
    m_sides[0].descriptor = client;
    m_sides[1].descriptor = console;
    for (std::size_t i = 0; i < m_sides.size(); ++i) {
        m_sides.at(i).events = EPOLLIN;
        m_sides.at(i).watch =
            loop.watch(m_sides.at(i).descriptor, EPOLLIN, [this, i](std::uint32_t events) { onEvents(i, events); });
    }
}

DelayedLink::~DelayedLink()
{
    for (const Side& side : m_sides) {
        if (side.watch != 0) {
            m_loop.forget(side.watch);
        }
        ::close(side.descriptor);
    }
}

void DelayedLink::onEvents(std::size_t from, std::uint32_t events)
{
    Side& side = m_sides.at(from);
    if ((events & EPOLLOUT) != 0 && side.blocked) {
        side.blocked = false;
        deliver(from);
    }
    if ((events & (EPOLLIN | EPOLLHUP | EPOLLERR)) != 0 && !side.finished) {
        read(from);
    } else if ((events & (EPOLLHUP | EPOLLERR)) != 0) {
        leave(from);
    }
}

/// Stops delivering to the side, which is gone. What that side has sent before is still delivered to the other side.
void DelayedLink::leave(std::size_t gone)
{
    Side& side = m_sides.at(gone);
    const Side& other = m_sides.at(1 - gone);
    if (other.watch == 0 || other.incoming.empty()) {
        end();
        return;
    }
    side.incoming.clear();
    m_loop.forget(std::exchange(side.watch, 0));
}

void DelayedLink::read(std::size_t from)
{
    Side& side = m_sides.at(from);
    const std::size_t to = 1 - from;
    const auto sent = from == 0 ? std::max(EventLoop::Clock::now(), m_made) : EventLoop::Clock::now();
    Piece piece{sent + wayOfOne(), std::string(pieceSize, '\0')};
    const ssize_t count = ::recv(side.descriptor, piece.bytes.data(), piece.bytes.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    side.finished = count <= 0;
    piece.bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    piece.bytes.shrink_to_fit();
    m_sides.at(to).incoming.push_back(std::move(piece));
    watchFor(side);
    await(to);
}

std::chrono::milliseconds DelayedLink::wayOfOne()
{
    const bool stalls = std::uniform_int_distribution(1, 100)(m_chance) <= m_distance.stalls;
    return m_distance.roundTrip / 2 + (stalls ? m_distance.roundTrip * 2 : std::chrono::milliseconds(0));
}

void DelayedLink::await(std::size_t to)
{
    Side& side = m_sides.at(to);
    if (side.timed || side.blocked || side.incoming.empty() || side.watch == 0) {
        return;
    }
    side.timed = true;
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(side.incoming.front().due - EventLoop::Clock::now());
    m_loop.after(std::max(wait, std::chrono::milliseconds(0)), side.watch, [this, to] {
        m_sides.at(to).timed = false;
        deliver(to);
    });
}

void DelayedLink::deliver(std::size_t to)
{
    Side& side = m_sides.at(to);
    const auto now = EventLoop::Clock::now();
    while (!m_isOver && !side.incoming.empty() && side.incoming.front().due <= now) {
        if (side.incoming.front().bytes.empty()) {
            side.incoming.clear();
            ::shutdown(side.descriptor, SHUT_WR);
            if (side.finished || m_sides.at(1 - to).watch == 0) {
                end();
            }
            return;
        }
        if (!write(side)) {
            return;
        }
    }
    if (!m_isOver) {
        await(to);
    }
}

/// Whether the first piece was written completely.
bool DelayedLink::write(Side& side)
{
    const std::string& bytes = side.incoming.front().bytes;
    const ssize_t count =
        ::send(side.descriptor, bytes.data() + side.written, bytes.size() - side.written, MSG_NOSIGNAL);
    if (count < 0 && errno != EAGAIN && errno != EINTR) {
        end();
        return false;
    }
    side.written += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    if (side.written < bytes.size()) {
        side.blocked = true;
        watchFor(side);
        return false;
    }
    side.written = 0;
    side.incoming.pop_front();
    watchFor(side);
    return true;
}

void DelayedLink::watchFor(Side& side)
{
    const std::uint32_t events = (side.finished ? 0U : static_cast<std::uint32_t>(EPOLLIN)) |
                                 (side.blocked ? static_cast<std::uint32_t>(EPOLLOUT) : 0U);
    if (side.watch != 0 && std::exchange(side.events, events) != events) {
        m_loop.change(side.watch, events);
    }
}

void DelayedLink::end()
{
    if (std::exchange(m_isOver, true)) {
        return;
    }
    for (Side& side : m_sides) {
        if (side.watch != 0) {
            m_loop.forget(std::exchange(side.watch, 0));
        }
        // The other ends learn of the end now, even if the link is destroyed a little later.
        ::shutdown(side.descriptor, SHUT_RDWR);
    }
    m_ended();
}

} // namespace lodestar::simulator

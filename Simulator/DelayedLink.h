// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/EventLoop.h"

#include <array>
#include <deque>
#include <functional>
#include <random>
#include <string>

namespace lodestar::simulator
{

/// The network between a client and a console, reduced to its distance. Bytes, and the end of a stream, arrive half a
/// round trip after they were sent, in either direction. The client's first bytes arrive one and a half round trips
/// after the connection was accepted: on a real network the connection takes that long to make, while the system makes
/// it at once. The number of bytes under way is not limited. A reset arrives as an ordinary end of the stream. On a bad
/// network some pieces come late, as after a lost packet was sent again, and what follows such a piece waits for it.
class DelayedLink
{
public:
    struct Distance {
        std::chrono::milliseconds roundTrip;
        int stalls = 0; ///< how many of a hundred pieces come two round trips late
    };

    /// Owns both descriptors. `ended` may destroy the link, but not within the call. Links with the same number delay
    /// the same pieces.
    DelayedLink(EventLoop& loop, int client, int console, Distance distance, std::uint64_t number,
                std::function<void()> ended);
    ~DelayedLink();
    DelayedLink(const DelayedLink&) = delete;
    DelayedLink& operator=(const DelayedLink&) = delete;

private:
    struct Piece {
        EventLoop::Clock::time_point due;
        std::string bytes; ///< empty for the end of the stream
    };
    struct Side {
        int descriptor = -1;
        EventLoop::Watch watch = 0; ///< 0 once nothing can be sent to this side any more
        std::uint32_t events = 0;
        std::deque<Piece> incoming; ///< on their way to this side
        std::size_t written = 0;    ///< bytes of the first piece that were written
        bool timed = false;
        bool blocked = false;
        bool finished = false; ///< this side sends nothing more
    };

    void onEvents(std::size_t from, std::uint32_t events);
    void read(std::size_t from);
    std::chrono::milliseconds wayOfOne();
    void deliver(std::size_t to);
    bool write(Side& side);
    void await(std::size_t to);
    void leave(std::size_t gone);
    void watchFor(Side& side);
    void end();

    EventLoop& m_loop;
    const Distance m_distance;
    const EventLoop::Clock::time_point m_made;
    const std::function<void()> m_ended;
    std::array<Side, 2> m_sides; ///< the client's side, then the console's
    std::mt19937 m_chance;
    bool m_isOver = false;
};

} // namespace lodestar::simulator

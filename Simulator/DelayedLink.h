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

/// The network between a client and a console, as far as distance goes: bytes and the end of the stream arrive half a
/// round trip after they were sent, in either direction, and those of the client no sooner than a connection takes to
/// be made, one and a half round trips after it was accepted: the system itself makes connections at once. Nothing
/// limits the bytes that are under way. A hard reset arrives as a plain end. On a bad network some pieces come late, as
/// after a packet was lost and sent again, and what follows them waits.
class DelayedLink
{
public:
    struct Distance {
        std::chrono::milliseconds roundTrip;
        int stalls = 0; ///< of a hundred pieces, how many come two round trips later
    };

    /// Owns both descriptors. `ended` may destroy the link, though not within the call.
    /// Links of one number stall at the same pieces.
    DelayedLink(EventLoop& loop, int client, int console, Distance distance, std::uint64_t number,
                std::function<void()> ended);
    ~DelayedLink();
    DelayedLink(const DelayedLink&) = delete;
    DelayedLink& operator=(const DelayedLink&) = delete;

private:
    struct Piece {
        EventLoop::Clock::time_point due;
        std::string bytes; ///< none for the end of the stream
    };
    struct Side {
        int descriptor = -1;
        EventLoop::Watch watch = 0; ///< 0 once nothing more can be said to this side
        std::uint32_t events = 0;
        std::deque<Piece> incoming; ///< towards this side
        std::size_t written = 0;    ///< of the first piece
        bool timed = false;
        bool blocked = false;
        bool finished = false; ///< nothing more comes from this side
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
    std::array<Side, 2> m_sides; ///< the client's, the console's
    std::mt19937 m_chance;
    bool m_isOver = false;
};

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/HeldBytes.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace lodestar
{

class Transfer;

/// Transfers whose bodies found no room and wait for some. The one that has waited longest gets the turn (see
/// HeldBytes) and keeps it to its end, unless it gets on slowly while others wait. When everybody waits and even the
/// turn finds no room, what they need can never be had: the one that holds the most is refused, and the others go on.
/// The network thread's.
class PausedTransfers
{
public:
    using Clock = std::chrono::steady_clock;
    /// How often `turn` is to be called while any are paused.
    static constexpr std::chrono::milliseconds period{20};

    bool empty() const { return m_paused.empty(); }
    void add(Transfer& transfer) { m_paused.push_back(&transfer); }
    /// Every transfer that ends is to be told.
    void forget(const Transfer& transfer);

    /// Lets go on those for which there is room now; `running` is how many transfers there are, paused or not. Calls
    /// `ended` with those that are to be taken from libcurl and told that their hop has ended; it may forget transfers
    /// but not add any.
    void turn(Clock::time_point now, std::size_t running, const std::function<void(Transfer&)>& ended);

private:
    void choose(Clock::time_point now);
    void drop();
    Transfer* largest() const;

    std::vector<Transfer*> m_paused; ///< in no order
    HeldBytes::Turn m_turn;
    Transfer* m_favoured = nullptr; ///< who has it
    Clock::time_point m_lookedAt;   ///< when it was last seen how fast that one gets on
    std::size_t m_heldThen = 0;
    Clock::time_point m_lastTurn;
    Clock::time_point m_lastMove; ///< when one last went on
};

} // namespace lodestar

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
/// HeldBytes) and keeps it to its end, unless it is slow while others wait. When all transfers wait and even the one
/// with the turn finds no room, there will never be enough: the transfer that holds the most is refused, and the others
/// go on. Network thread only.
class PausedTransfers
{
public:
    using Clock = std::chrono::steady_clock;
    /// How often to call `turn` while any transfer is paused.
    static constexpr std::chrono::milliseconds period{20};

    bool empty() const { return m_paused.empty(); }
    void add(Transfer& transfer) { m_paused.push_back(&transfer); }
    /// Call for every transfer that ends.
    void forget(const Transfer& transfer);

    /// Resumes the transfers for which there is room now. `running` is the number of all transfers, paused or not.
    /// Calls `ended` for each transfer whose hop has ended: the caller removes its handle from libcurl and ends the
    /// hop. `ended` may forget transfers but must not add any.
    void turn(Clock::time_point now, std::size_t running, const std::function<void(Transfer&)>& ended);

private:
    void choose(Clock::time_point now);
    void drop();
    Transfer* largest() const;

    std::vector<Transfer*> m_paused; ///< in no particular order
    HeldBytes::Turn m_turn;
    Transfer* m_favoured = nullptr; ///< the transfer with the turn
    Clock::time_point m_lookedAt;   ///< when that transfer's speed was last checked
    std::size_t m_heldThen = 0;
    Clock::time_point m_lastTurn;
    Clock::time_point m_lastMove; ///< when any transfer last went on
};

} // namespace lodestar

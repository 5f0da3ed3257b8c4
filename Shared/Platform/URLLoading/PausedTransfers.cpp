// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/PausedTransfers.h"

#include "Platform/URLLoading/Transfer.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

constexpr std::chrono::milliseconds patience{100};
constexpr std::chrono::seconds look{2};
/// Bytes between two looks; a low bar, since a slow network is nobody's fault.
constexpr std::size_t fastEnough = 1024UL * 1024;
constexpr std::chrono::milliseconds standstill{500};

} // namespace

void PausedTransfers::forget(const Transfer& transfer)
{
    std::erase(m_paused, &transfer);
    if (m_favoured == &transfer) {
        m_favoured = nullptr;
        m_turn.giveBack();
    }
}

void PausedTransfers::turn(Clock::time_point now, std::size_t running, const std::function<void(Transfer&)>& ended)
{
    if (m_paused.empty()) {
        m_lastMove = now;
        return;
    }
    if (now - m_lastTurn < period) {
        return;
    }
    m_lastTurn = now;
    choose(now);
    const bool allWait = running == m_paused.size() + (m_favoured != nullptr && !m_favoured->isPaused() ? 1 : 0);
    if (m_favoured != nullptr) {
        m_favoured->setClaim(allWait ? HeldBytes::Claim::Whole : HeldBytes::Claim::Turn);
    } else {
        m_lastMove = now; // The turn belongs to a body that is being unpacked, which will end.
    }
    std::size_t room = HeldBytes::unusedFair(TransferLimits::shared().heldBytes);
    for (Transfer* const transfer : std::exchange(m_paused, {})) {
        // Thousands may wait, and each try costs libcurl time.
        if (transfer != m_favoured && transfer->nextHeldBytes() > room) {
            m_paused.push_back(transfer);
            continue;
        }
        room -= std::min(room, transfer->nextHeldBytes());
        // A transfer that finds no room again has put itself back into the list.
        if (!transfer->goOn()) {
            ended(*transfer);
        } else if (!transfer->isPaused()) {
            m_lastMove = now;
        }
    }
    if (m_paused.size() < running) {
        m_lastMove = now; // The transfer with the turn receives, however slowly.
    }
    if (now - m_lastMove > standstill && HeldBytes::waitingForReaders() == 0) {
        Transfer* const one = largest();
        one->refuseForRoom();
        m_lastMove = now;
        ended(*one);
    }
}

void PausedTransfers::choose(Clock::time_point now)
{
    if (m_favoured != nullptr && now - m_lookedAt > look) {
        if (m_favoured->heldBytes() < m_heldThen + fastEnough) {
            drop();
        } else {
            m_lookedAt = now;
            m_heldThen = m_favoured->heldBytes();
        }
    }
    Transfer* const longest = *std::ranges::min_element(m_paused, {}, &Transfer::pausedSince);
    if (m_favoured == nullptr && now - longest->pausedSince() > patience && m_turn.tryTake()) {
        m_favoured = longest;
        m_lookedAt = now;
        m_heldThen = longest->heldBytes();
    }
}

/// Takes the turn away: others go first, then the transfer may have it again.
void PausedTransfers::drop()
{
    m_favoured->setClaim(HeldBytes::Claim::Fair);
    m_favoured->setPausedSince(m_lookedAt + look);
    m_favoured = nullptr;
    m_turn.giveBack();
}

Transfer* PausedTransfers::largest() const
{
    return *std::ranges::max_element(m_paused, {}, &Transfer::heldBytes);
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/HeldBytes.h"

#include "Platform/URLLoading/FreedMemory.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace lodestar
{

namespace
{

constexpr std::chrono::milliseconds moment{50};
constexpr std::size_t partOfFair = 3;
constexpr std::size_t partOfSmall = 24;
constexpr std::size_t partOfLittle = 2;
constexpr std::size_t littleBody = 64UL * 1024;
constexpr std::size_t leastPart = 64; ///< of the fair third: every server may have so much while there is room
constexpr std::size_t largeLoad = 64UL * 1024 * 1024;

std::atomic<void (*)()> givenBack = nullptr;

struct Books {
    std::mutex mutex;
    std::condition_variable changed; ///< signalled when less is held or the turn is free
    std::size_t total = 0;
    std::size_t most = 0; ///< the highest `total` since `total` was last 0
    std::size_t fair = 0;
    std::unordered_map<std::string, std::size_t> fairOfServers;
    std::size_t waiting = 0;
    bool turnIsTaken = false;

    void subtractFair(const std::string& server, std::size_t bytes)
    {
        const auto entry = fairOfServers.find(server);
        if (entry != fairOfServers.end() && (entry->second -= bytes) == 0) {
            fairOfServers.erase(entry);
        }
        fair -= bytes;
    }
};

Books& books()
{
    // Never destroyed: bodies may still be held when the process ends.
    static Books* const shared = new Books;
    return *shared;
}

} // namespace

bool HeldBytes::Turn::tryTake()
{
    const std::lock_guard lock(books().mutex);
    if (!m_has && !books().turnIsTaken) {
        m_has = books().turnIsTaken = true;
    }
    return m_has;
}

void HeldBytes::Turn::take()
{
    std::unique_lock lock(books().mutex);
    books().changed.wait(lock, [this] { return m_has || !books().turnIsTaken; });
    m_has = books().turnIsTaken = true;
}

void HeldBytes::Turn::giveBack()
{
    if (std::exchange(m_has, false)) {
        {
            const std::lock_guard lock(books().mutex);
            books().turnIsTaken = false;
        }
        books().changed.notify_all();
    }
}

HeldBytes::HeldBytes(HeldBytes&& other) noexcept
{
    *this = std::move(other);
}

HeldBytes& HeldBytes::operator=(HeldBytes&& other) noexcept
{
    if (this != &other) {
        reset();
        m_server = std::move(other.m_server);
        m_count = std::exchange(other.m_count, 0);
        m_fair = std::exchange(other.m_fair, true);
        m_delivering = std::exchange(other.m_delivering, false);
    }
    return *this;
}

bool HeldBytes::add(std::size_t bytes, std::size_t heldLimit, Claim claim)
{
    const std::lock_guard lock(books().mutex);
    const bool isBeginning = m_count + bytes <= littleBody && books().total + bytes <= heldLimit / partOfLittle;
    const bool little = claim == Claim::Small || isBeginning;
    if (claim == Claim::Fair && !m_fair) {
        return false;
    }
    if (claim != Claim::Fair && m_fair) {
        leaveFair();
    }
    const std::size_t forFair = heldLimit / partOfFair;
    const std::size_t unusedFair = forFair - std::min(books().fair, forFair);
    const std::size_t left = little                 ? 0
                             : claim == Claim::Turn ? heldLimit / partOfSmall + unusedFair
                                                    : heldLimit / partOfSmall;
    if (books().total + bytes + left > heldLimit) {
        return false;
    }
    if (m_fair) {
        const auto entry = books().fairOfServers.find(m_server);
        const std::size_t ofServer = (entry != books().fairOfServers.end() ? entry->second : 0) + bytes;
        if (!little && (bytes > unusedFair || ofServer > std::max(unusedFair - bytes, forFair / leastPart))) {
            return false;
        }
        books().fairOfServers[m_server] = ofServer; // first, since it may throw for lack of memory
        books().fair += bytes;
    }
    books().total += bytes;
    books().most = std::max(books().most, books().total);
    m_count += bytes;
    if (m_delivering) {
        books().waiting += bytes;
    }
    return true;
}

/// Call with the lock held.
void HeldBytes::leaveFair()
{
    books().subtractFair(m_server, m_count);
    m_fair = false;
}

void HeldBytes::shrinkTo(std::size_t bytes)
{
    if (bytes < m_count) {
        const std::size_t surplus = m_count - bytes;
        m_count = bytes;
        const std::lock_guard lock(books().mutex);
        books().total -= surplus;
        if (m_fair) {
            books().subtractFair(m_server, surplus);
        }
    }
}

void HeldBytes::reset()
{
    const std::size_t count = std::exchange(m_count, 0);
    const bool fair = std::exchange(m_fair, true);
    const bool delivering = std::exchange(m_delivering, false);
    if (count == 0) {
        return;
    }
    bool endsLargeLoad = false;
    {
        const std::lock_guard lock(books().mutex);
        books().total -= count;
        if (fair) {
            books().subtractFair(m_server, count);
        }
        books().waiting -= delivering ? count : 0;
        endsLargeLoad = books().total == 0 && std::exchange(books().most, 0) > largeLoad;
    }
    books().changed.notify_all();
    if (endsLargeLoad) {
        giveFreedMemoryBack();
    }
    if (auto* const told = givenBack.load()) {
        told();
    }
}

void HeldBytes::setGivenBack(void (*told)())
{
    givenBack = told;
}

void HeldBytes::setDelivering()
{
    if (!std::exchange(m_delivering, true)) {
        const std::lock_guard lock(books().mutex);
        books().waiting += m_count;
    }
}

std::size_t HeldBytes::total()
{
    const std::lock_guard lock(books().mutex);
    return books().total;
}

std::size_t HeldBytes::unusedFair(std::size_t heldLimit)
{
    const std::lock_guard lock(books().mutex);
    const std::size_t forFair = heldLimit / partOfFair;
    return forFair - std::min(books().fair, forFair);
}

std::size_t HeldBytes::mostOfOne(std::size_t heldLimit)
{
    return heldLimit - heldLimit / partOfSmall;
}

std::size_t HeldBytes::waitingForReaders()
{
    const std::lock_guard lock(books().mutex);
    return books().waiting;
}

void HeldBytes::waitForLess()
{
    std::unique_lock lock(books().mutex);
    books().changed.wait_for(lock, moment);
}

} // namespace lodestar

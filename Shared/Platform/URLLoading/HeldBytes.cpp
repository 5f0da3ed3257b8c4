// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/HeldBytes.h"

#include "Platform/URLLoading/NetworkThread.h"

#include <atomic>

namespace lodestar
{

namespace
{

std::atomic<std::size_t> heldBytes{0};
std::atomic<std::size_t> waitingBytes{0};

} // namespace

bool HeldBytes::add(std::size_t bytes, std::size_t limit)
{
    std::size_t before = heldBytes.load(std::memory_order_relaxed);
    do {
        if (bytes > limit || before > limit - bytes) {
            return false;
        }
    } while (!heldBytes.compare_exchange_weak(before, before + bytes, std::memory_order_relaxed));
    m_count += bytes;
    return true;
}

void HeldBytes::reset()
{
    const std::size_t count = std::exchange(m_count, 0);
    heldBytes.fetch_sub(count, std::memory_order_relaxed);
    if (std::exchange(m_delivering, false)) {
        waitingBytes.fetch_sub(count);
        NetworkThread::readerCaughtUp();
    }
}

void HeldBytes::setDelivering()
{
    if (!std::exchange(m_delivering, true)) {
        waitingBytes.fetch_add(m_count);
    }
}

std::size_t HeldBytes::total()
{
    return heldBytes.load(std::memory_order_relaxed);
}

std::size_t HeldBytes::waitingForReaders()
{
    return waitingBytes.load();
}

} // namespace lodestar

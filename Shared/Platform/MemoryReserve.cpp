// SPDX-License-Identifier: Apache-2.0
#include "Platform/MemoryReserve.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace lodestar::MemoryReserve
{

namespace
{

/// The reserve's size. Nothing is ever written to the reserve, so it takes address space and counts towards a limit,
/// but uses no memory.
constexpr std::size_t bytes = 4UL * 1024 * 1024;

std::atomic<void*> reserve = nullptr;
std::atomic<bool> installed = false;

/// The new handler. Runs on the thread whose allocation failed; when it returns, that thread allocates again.
void giveBack()
{
    void* const kept = reserve.exchange(nullptr);
    if (kept == nullptr) {
        throw std::bad_alloc();
    }
    std::free(kept);
}

} // namespace

void install()
{
    installed = true;
    topUp();
    std::set_new_handler(&giveBack);
}

void topUp() noexcept
{
    if (reserve.load(std::memory_order_relaxed) != nullptr || !installed.load(std::memory_order_relaxed)) {
        return;
    }
    void* const fresh = std::malloc(bytes);
    void* expected = nullptr;
    if (!reserve.compare_exchange_strong(expected, fresh)) {
        std::free(fresh); // another thread was faster
    }
}

} // namespace lodestar::MemoryReserve

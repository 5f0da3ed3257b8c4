// SPDX-License-Identifier: Apache-2.0
#include "XML/KeptBytes.h"

#include "Platform/URLLoading/TransferLimits.h"

#include <algorithm>
#include <atomic>

namespace lodestar
{

namespace
{

constexpr std::size_t megabyte = 1024UL * 1024;
constexpr std::size_t mostKept = 512 * megabyte;
constexpr std::size_t leastKept = 128 * megabyte;
constexpr std::size_t shareOfDevice = 8;
constexpr std::size_t smallDocument = 16UL * 1024;
constexpr std::size_t leftForSmall = 4 * megabyte;

std::atomic<std::size_t> keptBytes{0};
std::atomic<void (*)()> givenBack = nullptr;

} // namespace

KeptBytes::~KeptBytes()
{
    if (m_bytes > 0) {
        keptBytes.fetch_sub(m_bytes, std::memory_order_relaxed);
        if (auto* const told = givenBack.load()) {
            told();
        }
    }
}

bool KeptBytes::resize(std::size_t bytes)
{
    const std::size_t most = limit() - (bytes > smallDocument ? leftForSmall : 0);
    std::size_t before = keptBytes.load(std::memory_order_relaxed);
    do {
        if (bytes > m_bytes && before - m_bytes + bytes > most) {
            return false;
        }
    } while (!keptBytes.compare_exchange_weak(before, before - m_bytes + bytes, std::memory_order_relaxed));
    m_bytes = bytes;
    return true;
}

void KeptBytes::setGivenBack(void (*told)())
{
    givenBack = told;
}

std::size_t KeptBytes::total()
{
    return keptBytes.load(std::memory_order_relaxed);
}

std::size_t KeptBytes::limit()
{
    static const std::size_t bytes = std::clamp(deviceMemory() / shareOfDevice, leastKept, mostKept);
    return bytes;
}

} // namespace lodestar

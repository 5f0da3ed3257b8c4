// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/TransferLimits.h"

#include "Platform/URLLoading/HeldBytes.h"

#include <algorithm>
#include <unistd.h>

namespace lodestar
{

namespace
{

constexpr std::size_t megabyte = 1024UL * 1024;
constexpr std::size_t mostHeld = 192 * megabyte;
constexpr std::size_t leastHeld = 48 * megabyte; // with less, an ordinary feed would not fit
constexpr std::size_t shareOfDevice = 16;
constexpr std::size_t connectionsShareOfDevice = 32;
constexpr std::size_t bytesOfConnection = 130UL * 1024;
constexpr std::size_t leastConnections = 600;
constexpr std::size_t mostConnections = 3000;

} // namespace

std::size_t deviceMemory()
{
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    return pages > 0 && pageSize > 0 ? static_cast<std::size_t>(pages) * static_cast<std::size_t>(pageSize)
                                     : 2048 * megabyte;
}

TransferLimits TransferLimits::ofDevice(std::size_t memory)
{
    const std::size_t held = std::clamp(memory / shareOfDevice, leastHeld, mostHeld);
    return {.heldBytes = held,
            .bodyBytes = HeldBytes::mostOfOne(held),
            .connections = leastConnections,
            .connectionsOfSlowNetwork =
                std::clamp(memory / connectionsShareOfDevice / bytesOfConnection, leastConnections, mostConnections)};
}

TransferLimits& TransferLimits::shared()
{
    static TransferLimits limits = ofDevice(deviceMemory());
    return limits;
}

} // namespace lodestar

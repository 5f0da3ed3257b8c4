// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LastLines.h"

#include <algorithm>
#include <cstring>

namespace lodestar
{

void LastLines::append(std::string_view line)
{
    if (line.size() > capacity) {
        line.remove_prefix(line.size() - capacity);
    }
    const std::size_t total = m_total.load(std::memory_order_relaxed);
    const std::size_t at = total % capacity;
    const std::size_t first = std::min(line.size(), capacity - at);
    std::memcpy(m_bytes + at, line.data(), first);
    std::memcpy(m_bytes, line.data() + first, line.size() - first);
    m_total.store(total + line.size(), std::memory_order_release);
}

void LastLines::clear()
{
    m_total.store(0, std::memory_order_release);
    std::memset(m_bytes, 0, capacity);
}

} // namespace lodestar

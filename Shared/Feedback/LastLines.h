// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace lodestar
{

/// The log's last lines, kept in memory for a crash: lines that the background has not written by then would be lost,
/// and those tell what happened last. Only one thread may write at a time (the log writer's lock sees to that). A
/// signal handler may read at any time and at worst sees one line torn.
class LastLines
{
public:
    static constexpr std::size_t capacity = std::size_t{16} << 10;

    void append(std::string_view line)
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
    void clear()
    {
        m_total.store(0, std::memory_order_release);
        std::memset(m_bytes, 0, capacity);
    }
    /// Calls `piece` with the kept bytes in order, in at most two pieces. Safe in a signal handler if `piece` is safe
    /// there. The first line may lack its start.
    template <typename Function>
    void read(Function piece) const
    {
        const std::size_t total = m_total.load(std::memory_order_acquire);
        const std::size_t at = total % capacity;
        if (total > capacity) {
            piece(m_bytes + at, capacity - at);
        }
        piece(m_bytes, at);
    }

private:
    char m_bytes[capacity] = {};
    std::atomic<std::size_t> m_total = 0;
};

} // namespace lodestar

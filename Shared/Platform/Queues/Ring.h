// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <utility>

namespace lodestar
{

/// A growing first-in, first-out buffer of movable, default-constructible values. It keeps its capacity, so that a
/// queue in a steady state allocates nothing. Not thread-safe.
template <typename T>
class Ring
{
public:
    bool empty() const { return m_size == 0; }
    std::size_t size() const { return m_size; }

    /// Call it only when not `empty()`.
    const T& front() const { return m_items[m_head]; }

    void push(T&& item)
    {
        if (m_size == m_capacity) {
            grow();
        }
        m_items[(m_head + m_size) & (m_capacity - 1)] = std::move(item);
        ++m_size;
    }
    /// Call it only when not `empty()`.
    T pop()
    {
        T item = std::move(m_items[m_head]);
        m_head = (m_head + 1) & (m_capacity - 1);
        --m_size;
        return item;
    }

private:
    void grow()
    {
        const std::size_t capacity = m_capacity == 0 ? 8 : m_capacity * 2;
        std::unique_ptr<T[]> items(new T[capacity]);
        for (std::size_t i = 0; i < m_size; ++i) {
            items[i] = std::move(m_items[(m_head + i) & (m_capacity - 1)]);
        }
        m_items = std::move(items);
        m_capacity = capacity;
        m_head = 0;
    }

    std::unique_ptr<T[]> m_items;
    std::size_t m_capacity = 0; ///< zero or a power of two
    std::size_t m_head = 0;
    std::size_t m_size = 0;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

namespace lodestar
{

/// A growing array of plain values. A feed's arrays are so large that the system's allocator resizes a block by moving
/// its pages, so that nothing is copied and no estimate is needed beforehand. A vector would copy each time.
template <typename T>
class XMLArray
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    XMLArray() = default;
    ~XMLArray() { std::free(m_values); }
    XMLArray(const XMLArray&) = delete;
    XMLArray& operator=(const XMLArray&) = delete;

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    T* data() { return m_values; }
    const T* data() const { return m_values; }
    T& operator[](std::size_t index) { return m_values[index]; }
    const T& operator[](std::size_t index) const { return m_values[index]; }
    std::size_t memory() const { return m_capacity * sizeof(T); }

    /// Makes room for `count` values in all. Unused room costs addresses but no memory.
    void reserve(std::size_t count)
    {
        if (count > m_capacity) {
            setCapacity(count);
        }
    }
    /// Throws `std::bad_alloc` and then leaves the array as it was.
    void push_back(const T& value)
    {
        if (m_size == m_capacity) {
            grow(1);
        }
        m_values[m_size++] = value;
    }
    void append(const T* values, std::size_t count)
    {
        if (m_capacity - m_size < count) {
            grow(count);
        }
        if (count != 0) {
            std::memcpy(m_values + m_size, values, count * sizeof(T));
            m_size += count;
        }
    }

    T& back() { return m_values[m_size - 1]; }
    void pop_back() { --m_size; }
    /// Keeps only the first `count` values.
    void cut(std::size_t count) { m_size = count; }

    /// Gives unused room back; keeps it when the allocator cannot move the block.
    void shrinkToFit()
    {
        if (m_size == m_capacity) {
            return;
        }
        if (m_size == 0) {
            std::free(m_values);
            m_values = nullptr;
            m_capacity = 0;
        } else if (auto* const moved = static_cast<T*>(std::realloc(m_values, m_size * sizeof(T))); moved != nullptr) {
            m_values = moved;
            m_capacity = m_size;
        }
    }

private:
    void grow(std::size_t count)
    {
        const std::size_t smallest = 256 / sizeof(T);
        setCapacity(m_size + count + (m_size > smallest ? m_size : smallest));
    }
    void setCapacity(std::size_t capacity)
    {
        auto* const moved = static_cast<T*>(std::realloc(m_values, capacity * sizeof(T)));
        if (moved == nullptr) {
            throw std::bad_alloc();
        }
        m_values = moved;
        m_capacity = capacity;
    }

    T* m_values = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace lodestar

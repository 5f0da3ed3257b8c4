// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <utility>

namespace lodestar
{

/// A share of the bytes that bodies hold in the whole process: grows while a body is received, is marked `delivering`
/// once the body waits for its reader, and gives everything back when it is destroyed. Moves only.
class HeldBytes
{
public:
    HeldBytes() = default;
    HeldBytes(HeldBytes&& other) noexcept
        : m_count(std::exchange(other.m_count, 0)), m_delivering(std::exchange(other.m_delivering, false))
    {
    }
    HeldBytes& operator=(HeldBytes&& other) noexcept
    {
        if (this != &other) {
            reset();
            m_count = std::exchange(other.m_count, 0);
            m_delivering = std::exchange(other.m_delivering, false);
        }
        return *this;
    }
    HeldBytes(const HeldBytes&) = delete;
    HeldBytes& operator=(const HeldBytes&) = delete;
    ~HeldBytes() { reset(); }

    /// False, with nothing added, when all bodies together would hold more than the limit.
    bool add(std::size_t bytes, std::size_t limit);
    void reset();
    void setDelivering();

    static std::size_t total();
    /// Bytes of whole bodies whose readers have not come to them yet.
    static std::size_t waitingForReaders();

private:
    std::size_t m_count = 0;
    bool m_delivering = false;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

namespace lodestar
{

/// One body's share of the bytes that all bodies in the process hold. The share grows with the body, is marked
/// `delivering` once the body waits for its reader, and gives everything back on destruction. Movable only. One thread
/// at a time.
///
/// How the limit is shared: bodies that come side by side have a third of the limit, shared fairly between their
/// servers, until one body finds no room. From then on one body at a time has the turn: it may take everything else,
/// and also the unused rest of the third when nobody else could use that. So other bodies can never keep the body with
/// the turn from two thirds of the limit less the part for small bodies, and every body comes to its end. A 24th of the
/// limit is reserved for the unpacked bytes of small bodies. The first 64 KB of each body may exceed the third, up to
/// half of the limit, so that large bodies do not hold up a logon.
class HeldBytes
{
public:
    /// How far a share may grow. Fair: the server's part of the third. Turn: everything but the unused rest of the
    /// third and the 24th. Whole: everything but the 24th. Small: everything.
    enum class Claim { Fair, Turn, Whole, Small };

    /// The right to grow beyond fair shares. One owner at a time in the process. Given back on destruction.
    class Turn
    {
    public:
        Turn() = default;
        ~Turn() { giveBack(); }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        bool tryTake();
        /// Blocks until this object has the turn.
        void take();
        void giveBack();

    private:
        bool m_has = false;
    };

    HeldBytes() = default;
    explicit HeldBytes(std::string server) : m_server(std::move(server)) {}
    HeldBytes(HeldBytes&& other) noexcept;
    HeldBytes& operator=(HeldBytes&& other) noexcept;
    HeldBytes(const HeldBytes&) = delete;
    HeldBytes& operator=(const HeldBytes&) = delete;
    ~HeldBytes() { reset(); }

    /// False, with nothing added, when the claim does not allow so much. Once a share has grown by another claim, it
    /// cannot grow by a fair claim again: it has had its turn and waits for the next.
    bool add(std::size_t bytes, std::size_t heldLimit, Claim claim);
    std::size_t count() const { return m_count; }
    /// Gives back all but `bytes`. Do not call it once the body waits for its reader.
    void shrinkTo(std::size_t bytes);
    void reset();
    void setDelivering();

    static std::size_t total();
    /// How much of the fair third is free.
    static std::size_t unusedFair(std::size_t heldLimit);
    /// The most that one body may hold when no other body holds anything.
    static std::size_t mostOfOne(std::size_t heldLimit);
    /// Bytes of whole bodies that wait for their readers.
    static std::size_t waitingForReaders();
    /// Sets the function that is called, on any thread, each time a body has given its share back.
    static void setGivenBack(void (*told)());
    /// Blocks until something is given back, 50 ms at most.
    static void waitForLess();

private:
    void leaveFair();

    std::string m_server;
    std::size_t m_count = 0;
    bool m_fair = true;
    bool m_delivering = false;
};

} // namespace lodestar

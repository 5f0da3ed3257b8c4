// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

namespace lodestar
{

/// A share of the bytes that bodies hold in the whole process: grows with the body, is marked `delivering` once the
/// body waits for its reader, and gives everything back when it is destroyed. Moves only. One thread at a time.
///
/// Of the limit, bodies that come side by side have a third, shared fairly between their servers, until one finds no
/// room. From then on one body at a time has the turn: it may have everything else, and the rest of the third when
/// nobody could use it. So what others hold can never keep it from two thirds less what small bodies need, and each
/// comes to its end. A 24th of the limit is left to what small bodies unpack to. The first 64 KB of each body may go
/// beyond the third, up to half of the limit, so that large ones do not hold up a logon.
class HeldBytes
{
public:
    /// How far a share may grow: a server's part of the third; all but the rest of the third; all but the 24th; all.
    enum class Claim { Fair, Turn, Whole, Small };

    /// The right to grow beyond fair shares, of one at a time in the process. Given back when it is destroyed.
    class Turn
    {
    public:
        Turn() = default;
        ~Turn() { giveBack(); }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        bool tryTake();
        /// Blocks until it is had.
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

    /// False, with nothing added, when the claim does not reach so far. Once one has grown by another claim, it grows
    /// by a fair one no more: it has had its turn and waits for the next.
    bool add(std::size_t bytes, std::size_t heldLimit, Claim claim);
    std::size_t count() const { return m_count; }
    /// Gives back what goes beyond so many bytes. Not once the body waits for its reader.
    void shrinkTo(std::size_t bytes);
    void reset();
    void setDelivering();

    static std::size_t total();
    /// How much of the third is left.
    static std::size_t unusedFair(std::size_t heldLimit);
    /// The most that one body may hold when nothing else is held.
    static std::size_t mostOfOne(std::size_t heldLimit);
    /// Bytes of whole bodies whose readers have not come to them yet.
    static std::size_t waitingForReaders();
    /// Blocks until something is given back, or for a moment.
    static void waitForLess();

private:
    void leaveFair();

    std::string m_server;
    std::size_t m_count = 0;
    bool m_fair = true;
    bool m_delivering = false;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
// Has the i-th call of a kind fail. In a program of its own, and in one source of it: this stands in for the process's
// allocator and for the system's calls.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace lodestar::injection
{

enum class Call { None, Allocation, Write, Sync, Rename };

enum class Threads { This, All };

/// That call alone, or each from that one on, as on a full disk.
enum class Extent { One, Lasting };

namespace detail
{
inline thread_local bool counted = false; ///< this thread's calls are
inline std::atomic<bool> everyThread = false;
inline std::atomic<Call> failing = Call::None;
inline std::atomic<bool> lasting = false;
inline std::atomic<int> left = 0;
inline std::atomic<bool> happened = false;

/// Whether this call is the one that fails.
inline bool fails(Call call, int error)
{
    if (failing != call || !(counted || everyThread)) {
        return false;
    }
    if (const int number = left--; number > 0 || (number < 0 && !lasting)) {
        return false;
    }
    happened = true;
    errno = error;
    return true;
}
} // namespace detail

struct Kind {
    Call call;
    Extent extent = Extent::One;
};

inline constexpr std::array everyKind = {Kind{Call::Allocation}, Kind{Call::Write}, Kind{Call::Write, Extent::Lasting},
                                         Kind{Call::Sync}, Kind{Call::Rename}};

/// While it lives, the call of that kind and number fails. Numbers begin at 0.
class Failing
{
public:
    Failing(Kind kind, int number, Threads threads = Threads::This)
    {
        detail::happened = false;
        detail::lasting = kind.extent == Extent::Lasting;
        detail::left = number;
        detail::counted = true;
        detail::everyThread = threads == Threads::All;
        detail::failing = kind.call;
    }
    ~Failing()
    {
        detail::failing = Call::None;
        detail::counted = false;
    }
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;

    /// Whether there was such a call, until the next one is to fail.
    static bool happened() { return detail::happened; }
};

/// Calls the work with number after number, until it had such a call no more: how many calls have failed. Allocations
/// are by far the most: of them only one in so many fails.
template <typename Work>
int forEachFailure(Kind kind, int stepOfAllocations, const Work& work)
{
    constexpr int far = 100'000;
    const int step = kind.call == Call::Allocation ? stepOfAllocations : 1;
    int number = 0;
    do {
        SCOPED_TRACE(testing::Message() << "call " << number << " of kind " << static_cast<int>(kind.call));
        detail::happened = false;
        work(number);
        number += step;
    } while (Failing::happened() && number < far);
    return number / step - 1;
}

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

// NOLINTBEGIN(misc-definitions-in-headers)
void* malloc(std::size_t size) noexcept
{
    return detail::fails(Call::Allocation, ENOMEM) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) noexcept
{
    return detail::fails(Call::Allocation, ENOMEM) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) noexcept
{
    return detail::fails(Call::Allocation, ENOMEM) ? nullptr : __libc_realloc(block, size);
}

ssize_t write(int file, const void* bytes, std::size_t size)
{
    return detail::fails(Call::Write, ENOSPC) ? -1 : ::syscall(SYS_write, file, bytes, size);
}
ssize_t pwrite64(int file, const void* bytes, std::size_t size, off64_t offset)
{
    return detail::fails(Call::Write, ENOSPC) ? -1 : ::syscall(SYS_pwrite64, file, bytes, size, offset);
}
int ftruncate64(int file, off64_t size) noexcept
{
    return detail::fails(Call::Write, ENOSPC) ? -1 : static_cast<int>(::syscall(SYS_ftruncate, file, size));
}
int fsync(int file)
{
    return detail::fails(Call::Sync, EIO) ? -1 : static_cast<int>(::syscall(SYS_fsync, file));
}
int fdatasync(int file)
{
    return detail::fails(Call::Sync, EIO) ? -1 : static_cast<int>(::syscall(SYS_fdatasync, file));
}
int rename(const char* from, const char* to) noexcept
{
    return detail::fails(Call::Rename, EIO) ? -1 : static_cast<int>(::syscall(SYS_rename, from, to));
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    return detail::fails(Call::Rename, EIO)
               ? -1
               : static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}
// NOLINTEND(misc-definitions-in-headers)
}

} // namespace lodestar::injection

// SPDX-License-Identifier: Apache-2.0
#include "Tools/Screenshots/NightFleet.h"

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

/// Seconds by which the wall clock is moved.
std::atomic<std::time_t> moved{0};

/// 12 March 2026, 09:43.
constexpr std::time_t morning = 1773308580;

} // namespace

// The program's own wall clock stands in for the system's, in all libraries. Timers do not follow it.
extern "C" {
int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    const long result = ::syscall(SYS_clock_gettime, clock, now);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) {
        now->tv_sec += moved;
    }
    return static_cast<int>(result);
}
}

namespace lodestar::scenes
{

void setMorningClock(bool isMorning)
{
    moved = 0;
    if (isMorning) {
        timespec now{};
        clock_gettime(CLOCK_REALTIME, &now);
        moved = morning - now.tv_sec;
    }
}

} // namespace lodestar::scenes

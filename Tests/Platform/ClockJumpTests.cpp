// SPDX-License-Identifier: Apache-2.0
// The wall clock set forward and back by years while something waits. A program of its own, since it stands in for the
// process's wall clock.
#include "Platform/Queues/MainQueue.h"
#include "Tests/Platform/URLLoadingFixture.h"

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

std::atomic<std::time_t> jump{0}; ///< seconds

} // namespace

extern "C" {
int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    const long result = ::syscall(SYS_clock_gettime, clock, now);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) {
        now->tv_sec += jump;
    }
    return static_cast<int>(result);
}
}

namespace lodestar::test
{

using namespace std::chrono_literals;
using std::chrono::steady_clock;
using std::chrono::system_clock;

constexpr std::time_t tenYears = 315'000'000;

TEST_F(URLLoadingTest, DeadlinesDoNotFollowTheWallClock)
{
    MainQueue::shared().adoptCurrentThread();
    simulator::SimulatorProcess simulator{{}};
    const std::string key = logOn(simulator);
    const auto before = system_clock::now();
    for (const std::time_t to : {tenYears, -tenYears}) {
        SCOPED_TRACE(to);
        jump = 0;
        simulator.setFault("stallFeed:ManagedSystem");
        URLRequest request = feedRequest(simulator, key);
        request.timeout = 1500ms;
        const auto start = steady_clock::now();
        const auto delegate = connect(request);
        bool due = false;
        MainQueue::shared().asyncAfter(100ms, [&due] { due = true; });
        jump = to;
        ASSERT_GT(abs(system_clock::now() - before), 24h) << "the clock can be set at all";
        EXPECT_TRUE(MainQueue::shared().runUntil([&due] { return due; }, 60s));
        EXPECT_THAT(steady_clock::now() - start, AllOf(Ge(100ms), Le(3s)));
        EXPECT_EQ(codeOf(delegate->outcome()), URLErrorCode::TimedOut);
        EXPECT_THAT(steady_clock::now() - start, AllOf(Ge(1500ms), Le(4500ms)));
        simulator.clearFaults();
        EXPECT_TRUE(loadAsynchronously(feedRequest(simulator, key)).ok()) << "of a server that is known";
        EXPECT_TRUE(sendSynchronousRequest(feedRequest(simulator, key)).ok());
    }
    jump = 0;
}

} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Loop.h"

#include "Platform/Queues/MainQueue.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace lodestar
{
namespace
{

using Clock = std::chrono::steady_clock;
constexpr std::array endSignals = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> cameSignal = 0;
std::atomic<int> wakeDescriptor = -1;

/// Also from the signal handler.
void wake()
{
    constexpr std::uint64_t one = 1;
    const int error = errno;
    // A counter that is full has woken the loop already.
    [[maybe_unused]] const ssize_t written = ::write(wakeDescriptor, &one, sizeof one);
    errno = error;
}

void didCome(int number)
{
    cameSignal = number;
    wake();
}

/// Sleeps until it is woken or the time is over. Whether the output is a pipe or a socket without a reader, or a
/// terminal that hung up, unless it is -1.
bool sleepUntilWoken(int timeout, int output)
{
    std::array<pollfd, 2> descriptors = {pollfd{wakeDescriptor, POLLIN, 0}, pollfd{output, 0, 0}};
    ::poll(descriptors.data(), descriptors.size(), timeout);
    if (descriptors[0].revents != 0) {
        std::uint64_t wakes = 0;
        [[maybe_unused]] const ssize_t taken = ::read(wakeDescriptor, &wakes, sizeof wakes);
    }
    return (descriptors[1].revents & (POLLERR | POLLHUP)) != 0;
}

} // namespace

Loop::Loop()
{
    wakeDescriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    MainQueue::shared().adoptCurrentThread();
    MainQueue::shared().setWake(&wake);
    struct sigaction action {
    };
    action.sa_handler = &didCome;
    // A second signal ends the process whatever it does.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : endSignals) {
        struct sigaction former {
        };
        // What the parent ignores, as nohup does, stays ignored.
        if (::sigaction(number, nullptr, &former) == 0 && former.sa_handler != SIG_IGN) {
            ::sigaction(number, &action, nullptr);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
}

Loop::~Loop()
{
    MainQueue::shared().setWake(nullptr);
}

int Loop::signal()
{
    return cameSignal;
}

Loop::End Loop::runUntil(const std::function<bool()>& predicate, std::optional<std::chrono::milliseconds> limit)
{
    const Clock::time_point due = limit ? Clock::now() + *limit : Clock::time_point::max();
    while (true) {
        MainQueue::shared().drain();
        if (predicate()) {
            return End::Met;
        }
        if (signal() != 0) {
            return End::Interrupted;
        }
        const auto left = due - Clock::now();
        if (left <= Clock::duration::zero()) {
            return End::TimedOut;
        }
        constexpr std::chrono::milliseconds longest = std::chrono::hours(1);
        const auto sleep = std::min(std::chrono::ceil<std::chrono::milliseconds>(left), longest);
        if (sleepUntilWoken(static_cast<int>(sleep.count()), m_output)) {
            return End::Closed;
        }
    }
}

} // namespace lodestar

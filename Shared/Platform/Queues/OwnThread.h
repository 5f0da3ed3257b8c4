// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace lodestar
{

/// Every thread of ours creates one as a local of its thread function. It gives the thread a name for debuggers, at
/// most 15 bytes, and a second stack, so that a crash report can be written even after the first stack overflowed.
/// Where the system refuses either, the thread runs without it. Create it on the thread itself, before all other
/// locals, so that it is destroyed last.
class OwnThread
{
public:
    explicit OwnThread(const char* name);
    ~OwnThread();
    OwnThread(const OwnThread&) = delete;
    OwnThread& operator=(const OwnThread&) = delete;

    /// Lowers the calling thread's priority for good: it runs only when nothing else wants the processor. Where the
    /// system has no such priority, nothing changes.
    static void takeIdlePriority();
    /// Lowers the calling thread's priority a little, for good: others go first when they want the processor. The
    /// thread still gets enough time to finish its work on a busy device.
    static void takeLowPriority();
    /// The calling thread's number in the system's own tools. Where the system numbers no threads, a number that is
    /// unique among the threads of this process while they live.
    static std::uint64_t number();

private:
    void* m_stack = nullptr;
};

} // namespace lodestar

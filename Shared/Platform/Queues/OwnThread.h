// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace lodestar
{

/// What every thread of ours begins with, as a local of its function: a name for debuggers, at most 15 bytes, and a
/// second stack, on which a crash that used up the first one can still be written down. Both where the system has them;
/// the thread runs without what cannot be had. Made and destroyed on the thread itself, the last of its locals to go.
class OwnThread
{
public:
    explicit OwnThread(const char* name);
    ~OwnThread();
    OwnThread(const OwnThread&) = delete;
    OwnThread& operator=(const OwnThread&) = delete;

    /// Lets the calling thread run only when nothing else wants the processor, for good. Where the system has no such
    /// priority the thread keeps the one it has.
    static void takeIdlePriority();
    /// Lets others go first where they want the processor, for good; what is left is enough to come to an end on a busy
    /// device.
    static void takeLowPriority();
    /// What the system's own tools call the calling thread; where it has no numbers for threads, one that tells the
    /// threads of this process apart while they live.
    static std::uint64_t number();

private:
    void* m_stack = nullptr;
};

} // namespace lodestar

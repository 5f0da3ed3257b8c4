// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

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

private:
    void* m_stack = nullptr;
};

} // namespace lodestar

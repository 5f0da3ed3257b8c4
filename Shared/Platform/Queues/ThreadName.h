// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <pthread.h>

namespace lodestar
{

/// Gives the calling thread a name for debuggers, at most 15 bytes, where the system keeps such names.
inline void nameThisThread([[maybe_unused]] const char* name)
{
#if defined(__linux__)
    pthread_setname_np(pthread_self(), name);
#elif defined(__APPLE__)
    pthread_setname_np(name);
#endif
}

} // namespace lodestar

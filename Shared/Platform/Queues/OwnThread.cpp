// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/OwnThread.h"

#include <csignal>
#include <cstddef>
#include <pthread.h>
#include <sched.h>
#include <sys/mman.h>

#if defined(__linux__)
#include <sys/resource.h>
#include <unistd.h>
#elif !defined(__APPLE__)
#include <functional>
#include <thread>
#endif

namespace lodestar
{

namespace
{

/// The second stack's size: room for the handler, the unwinder and the registers of the largest processors. Untouched
/// pages cost no memory.
constexpr std::size_t stackBytes = std::size_t{64} << 10;

void nameThisThread([[maybe_unused]] const char* name)
{
#if defined(__linux__)
    ::pthread_setname_np(::pthread_self(), name);
#elif defined(__APPLE__)
    ::pthread_setname_np(name);
#endif
}

} // namespace

OwnThread::OwnThread(const char* name)
{
    nameThisThread(name);
    stack_t present = {};
    if (::sigaltstack(nullptr, &present) != 0 || (present.ss_flags & SS_DISABLE) == 0) {
        return; // something else, a sanitizer for instance, gave the thread its second stack and will free it
    }
    void* const memory = ::mmap(nullptr, stackBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return;
    }
    stack_t second = {};
    second.ss_sp = memory;
    second.ss_size = stackBytes;
    if (::sigaltstack(&second, nullptr) == 0) {
        m_stack = memory;
    } else {
        ::munmap(memory, stackBytes);
    }
}

OwnThread::~OwnThread()
{
    if (m_stack != nullptr) {
        stack_t none = {};
        none.ss_flags = SS_DISABLE;
        ::sigaltstack(&none, nullptr);
        ::munmap(m_stack, stackBytes);
    }
}

void OwnThread::takeIdlePriority()
{
#ifdef SCHED_IDLE
    const sched_param parameters{};
    ::pthread_setschedparam(::pthread_self(), SCHED_IDLE, &parameters);
#endif
}

void OwnThread::takeLowPriority()
{
#if defined(__linux__)
    constexpr int niceness = 10;
    // On Linux this sets the priority of the calling thread alone.
    ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness);
#endif
}

std::uint64_t OwnThread::number()
{
#if defined(__linux__)
    return static_cast<std::uint64_t>(::gettid());
#elif defined(__APPLE__)
    std::uint64_t number = 0;
    ::pthread_threadid_np(nullptr, &number);
    return number;
#else
    return std::hash<std::thread::id>()(std::this_thread::get_id());
#endif
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/Transfer.h"
#include "Platform/URLLoading/TransferQueue.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <vector>

namespace lodestar
{

/// The one thread on which asynchronous transfers run: an event loop over libcurl's multi interface. Transfers start
/// in the order in which they came; so many run at once that memory stays bounded, where one whose server dawdles does
/// not count, so that a few bad servers cannot hold up the rest. A transfer's clocks start when it does.
///
/// At the process's exit the thread ends between two events; transfers in flight are then left as they are, their
/// clients untouched, since nobody is there to be told.
class NetworkThread
{
public:
    static NetworkThread& shared();

    /// Any thread.
    void start(std::shared_ptr<Transfer> transfer);
    /// Any thread. Does nothing to a transfer that has ended.
    void cancel(std::shared_ptr<Transfer> transfer);

    /// To be called when a body has been handed to its reader: starts what waited for that. Any thread.
    static void readerCaughtUp();

private:
    using Clock = Transfer::Clock;

    NetworkThread();
    ~NetworkThread() = default;

    void run();
    void wake() const;
    int waitTime() const;
    void takeInbox();
    void startWaiting();
    std::shared_ptr<Transfer> nextToStart(Clock::time_point now);
    bool readersKeepUp();
    void countSlow(Clock::time_point now);
    std::size_t briskCount() const;
    void add(const std::shared_ptr<Transfer>& transfer);
    void finishDone();
    void failOverdue();
    void remove(const std::shared_ptr<Transfer>& transfer);

    std::atomic<CURLM*> m_multi = nullptr; ///< the thread's own doing: libcurl is loaded there
    std::thread m_thread;

    std::mutex m_inboxMutex;
    std::vector<std::shared_ptr<Transfer>> m_started;
    std::vector<std::shared_ptr<Transfer>> m_cancelled;
    bool m_stopping = false;

    // The loop's own.
    TransferQueue m_waiting;
    std::unordered_map<Transfer*, std::shared_ptr<Transfer>> m_running;
    std::size_t m_slow = 0; ///< of the running ones, as last counted
    Clock::time_point m_slowCounted;
    Clock::time_point m_nextDeadline = Clock::time_point::max();
};

} // namespace lodestar

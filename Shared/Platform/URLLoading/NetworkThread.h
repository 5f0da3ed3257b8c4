// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/ConnectionsAhead.h"
#include "Platform/URLLoading/Idleness.h"
#include "Platform/URLLoading/PausedTransfers.h"
#include "Platform/URLLoading/Transfer.h"
#include "Platform/URLLoading/TransferQueue.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lodestar
{

/// The one thread on which asynchronous transfers run: an event loop over libcurl's multi interface. No count of
/// transfers holds any back. One starts at once when its server has a connection for it: a kept one, one that was made
/// ahead, or none so far. Where all are in use, another is made as soon as this thread has next to nothing to do:
/// through a network with a length that is at once, while a machine that is busy with what comes in already is spared
/// five handshakes of six. Memory and descriptors are the limits: bytes that wait for their readers, connections with
/// their buffers, and sockets. A transfer's clocks start when it does, a person's when it is asked for.
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

    /// So many transfers to the address's server are soon to be started, if all goes well: connections are made ready
    /// for them. Negative to take that back, which the same caller does in any case. Any thread.
    void expect(const std::string& url, int transfers);

    /// To be called when a body has been handed to its reader: starts what waited for that. Any thread.
    static void readerCaughtUp();
    /// Whether no transfer was under way when the thread last looked. Any thread.
    static bool isQuiet();

private:
    using Clock = Transfer::Clock;

    NetworkThread();
    ~NetworkThread() = default;

    void run();
    void wake() const;
    int waitTime();
    void takeInbox();
    void startWaiting();
    void begin(const std::shared_ptr<Transfer>& transfer);
    std::shared_ptr<Transfer> nextToStart(Clock::time_point now);
    bool mayConnectMore(std::size_t most) const;
    bool readersKeepUp();
    void openAhead(Clock::time_point now);
    void add(const std::shared_ptr<Transfer>& transfer);
    void finishDone();
    void finishHop(Transfer* done, CURLcode result);
    void failOverdue();
    void letFleetRest(Clock::time_point now);
    void remove(const std::shared_ptr<Transfer>& transfer);
    void forget(const std::shared_ptr<Transfer>& transfer);

    std::atomic<CURLM*> m_multi = nullptr; ///< the thread's own doing: libcurl is loaded there
    std::thread m_thread;

    std::mutex m_inboxMutex;
    std::vector<std::shared_ptr<Transfer>> m_started;
    std::vector<std::shared_ptr<Transfer>> m_cancelled;
    std::vector<std::pair<std::string, int>> m_expected;
    bool m_stopping = false;

    // The loop's own.
    TransferQueue m_waiting;
    std::unordered_map<Transfer*, std::shared_ptr<Transfer>> m_running;
    ConnectionsAhead m_ahead;
    Idleness m_idleness;
    bool m_hasReleased = false; ///< a handshake may go on: no socket tells libcurl of that
    PausedTransfers m_paused;
    std::size_t m_persons = 0; ///< of those that run
    bool m_fleetRests = false; ///< while a person's answer comes in
    Clock::time_point m_nextDeadline = Clock::time_point::max();
};

} // namespace lodestar

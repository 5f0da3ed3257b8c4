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

/// The one thread on which asynchronous transfers run: an event loop over libcurl's multi interface. The number of
/// transfers is no limit. A transfer starts at once when a connection is free for it (a kept one or one made ahead), or
/// when its server has none. When all the server's connections are in use, a new one is made as soon as this thread is
/// idle: with a slow network that is at once, while a machine that is busy with incoming bytes is spared five
/// handshakes of six. The limits are memory and descriptors: bytes that wait for their readers, connections with their
/// buffers, and sockets. A transfer's clocks start when the transfer starts; a person's clocks start when the transfer
/// is requested.
///
/// When the process exits, the thread ends between two events. Transfers in flight then stay as they are, and their
/// clients are not called: nobody is left to be told.
class NetworkThread
{
public:
    static NetworkThread& shared();

    /// Any thread.
    void start(std::shared_ptr<Transfer> transfer);
    /// Any thread. Does nothing to a transfer that has ended.
    void cancel(std::shared_ptr<Transfer> transfer);

    /// Says that so many transfers to the address's server will probably start soon: connections are made ready for
    /// them. The same caller later takes this back, in any case, with a negative number. Any thread.
    void expect(const std::string& url, int transfers);

    /// True when no transfer was under way at the thread's last look. Any thread.
    static bool isQuiet();

private:
    using Clock = Transfer::Clock;

    NetworkThread();
    ~NetworkThread() = default;

    /// Starts what waited for a body to be handed to its reader. Any thread.
    static void readerCaughtUp();
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

    std::atomic<CURLM*> m_multi = nullptr; ///< made by the thread itself, because loading libcurl takes time
    std::thread m_thread;

    std::mutex m_inboxMutex;
    std::vector<std::shared_ptr<Transfer>> m_started;
    std::vector<std::shared_ptr<Transfer>> m_cancelled;
    std::vector<std::pair<std::string, int>> m_expected;
    bool m_stopping = false;

    // Only the loop uses the members below.
    TransferQueue m_waiting;
    std::unordered_map<Transfer*, std::shared_ptr<Transfer>> m_running;
    ConnectionsAhead m_ahead;
    Idleness m_idleness;
    bool m_hasReleased = false; ///< a released handshake can go on, and no socket tells libcurl so
    PausedTransfers m_paused;
    std::size_t m_persons = 0; ///< running transfers of persons
    bool m_fleetRests = false; ///< true while a person's answer comes in
    Clock::time_point m_nextDeadline = Clock::time_point::max();
};

} // namespace lodestar

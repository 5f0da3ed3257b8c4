// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/NetworkThread.h"

#include "Platform/Queues/OwnThread.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

namespace lodestar
{

namespace
{

// Enough to keep both ends busy on a fast network; each costs about 100 KB while it runs.
constexpr std::size_t briskTransfers = 128;
// As many as one or two consoles ask for at once: these need not share connections.
constexpr std::size_t briskTransfersOfFew = 12;
constexpr std::size_t waitingBytesLimit = 48UL * 1024 * 1024;
constexpr long keptConnections = 512;
constexpr std::size_t descriptorsForOthers = 256;
constexpr std::chrono::milliseconds slowCountInterval{50};
constexpr int longestWait = 60'000; ///< milliseconds

std::atomic<NetworkThread*> theThread{nullptr};
std::atomic<bool> readersAwaited{false};

/// Slow transfers do not count against `briskTransfers`, but every one has a descriptor.
std::size_t descriptorLimit()
{
    static const std::size_t limit = [] {
        rlimit files{};
        getrlimit(RLIMIT_NOFILE, &files);
        const std::size_t all = std::min<std::size_t>(files.rlim_cur, 16'384);
        return all > 2 * descriptorsForOthers ? all - descriptorsForOthers : all / 2;
    }();
    return limit;
}

} // namespace

NetworkThread& NetworkThread::shared()
{
    // Never destroyed: others may still hold transfers when the process ends.
    static NetworkThread* const thread = [] {
        prepareProcessForTransfers();
        auto* const made = new NetworkThread;
        theThread = made;
        std::atexit([] {
            NetworkThread& self = *theThread.load();
            {
                const std::lock_guard lock(self.m_inboxMutex);
                self.m_stopping = true;
            }
            self.wake();
            self.m_thread.join();
        });
        return made;
    }();
    return *thread;
}

NetworkThread::NetworkThread()
{
    m_thread = std::thread([this] { run(); });
}

void NetworkThread::start(std::shared_ptr<Transfer> transfer)
{
    {
        const std::lock_guard lock(m_inboxMutex);
        m_started.push_back(std::move(transfer));
        if (m_started.size() > 1) {
            return; // woken already
        }
    }
    wake();
}

void NetworkThread::cancel(std::shared_ptr<Transfer> transfer)
{
    {
        const std::lock_guard lock(m_inboxMutex);
        m_cancelled.push_back(std::move(transfer));
    }
    wake();
}

void NetworkThread::readerCaughtUp()
{
    if (readersAwaited.load() && HeldBytes::waitingForReaders() < waitingBytesLimit) {
        theThread.load()->wake();
    }
}

void NetworkThread::wake() const
{
    // Until the thread has one, it has not looked at the inbox either.
    if (CURLM* const multi = m_multi.load(); multi != nullptr) {
        curl().multiWakeup(multi);
    }
}

void NetworkThread::run()
{
    const OwnThread thread("lodestar-net");
    CURLM* const multi = curl().multiInit();
    if (multi == nullptr) {
        std::fputs("The network thread could not be made\n", stderr);
        std::abort();
    }
    curl().multiSetopt(multi, CURLMOPT_MAXCONNECTS, keptConnections);
    m_multi = multi;
    for (;;) {
        {
            const std::lock_guard lock(m_inboxMutex);
            if (m_stopping) {
                return;
            }
        }
        takeInbox();
        startWaiting();
        curl().multiPoll(multi, nullptr, 0, waitTime(), nullptr);
        int running = 0;
        curl().multiPerform(multi, &running);
        finishDone();
        failOverdue();
    }
}

/// libcurl's own timers cut the wait short by themselves.
int NetworkThread::waitTime() const
{
    const Clock::time_point now = Clock::now();
    const Clock::time_point until =
        m_waiting.empty() ? m_nextDeadline : std::min(m_nextDeadline, now + slowCountInterval);
    if (until == Clock::time_point::max()) {
        return longestWait;
    }
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(until - now);
    return static_cast<int>(std::clamp<std::int64_t>(wait.count(), 0, longestWait));
}

void NetworkThread::takeInbox()
{
    std::vector<std::shared_ptr<Transfer>> started;
    std::vector<std::shared_ptr<Transfer>> cancelled;
    {
        const std::lock_guard lock(m_inboxMutex);
        started.swap(m_started);
        cancelled.swap(m_cancelled);
    }
    for (auto& transfer : started) {
        m_waiting.push(std::move(transfer));
    }
    for (const auto& transfer : cancelled) {
        if (m_running.contains(transfer.get())) {
            remove(transfer);
            transfer->fail(URLErrorCode::Cancelled);
        } else if (m_waiting.erase(transfer)) {
            transfer->fail(URLErrorCode::Cancelled);
        }
    }
}

void NetworkThread::startWaiting()
{
    readersAwaited = false;
    while (const std::shared_ptr<Transfer> transfer = nextToStart(Clock::now())) {
        if (transfer->start()) {
            m_waiting.didStart(*transfer);
            m_running.emplace(transfer.get(), transfer);
            add(transfer);
        }
    }
}

/// Null when nothing waits or all that does has to wait on.
std::shared_ptr<Transfer> NetworkThread::nextToStart(Clock::time_point now)
{
    if (m_waiting.empty()) {
        return nullptr;
    }
    if (m_running.empty()) {
        return m_waiting.take(TransferQueue::Busy::Take);
    }
    if (m_running.size() >= descriptorLimit() || !readersKeepUp()) {
        return nullptr;
    }
    if (m_running.size() >= briskTransfersOfFew) {
        countSlow(now);
    }
    if (briskCount() >= briskTransfers) {
        return nullptr;
    }
    return m_waiting.take(briskCount() < briskTransfersOfFew ? TransferQueue::Busy::Take : TransferQueue::Busy::Skip);
}

bool NetworkThread::readersKeepUp()
{
    if (HeldBytes::waitingForReaders() < waitingBytesLimit) {
        return true;
    }
    readersAwaited = true;
    // Again, for the reader that came in between.
    return HeldBytes::waitingForReaders() < waitingBytesLimit;
}

std::size_t NetworkThread::briskCount() const
{
    return m_running.size() - std::min(m_slow, m_running.size());
}

void NetworkThread::countSlow(Clock::time_point now)
{
    if (now - m_slowCounted < slowCountInterval) {
        return;
    }
    m_slowCounted = now;
    m_slow = static_cast<std::size_t>(
        std::ranges::count_if(m_running, [now](const auto& entry) { return entry.second->isSlow(now); }));
}

void NetworkThread::add(const std::shared_ptr<Transfer>& transfer)
{
    m_nextDeadline = std::min(m_nextDeadline, transfer->deadline());
    curl().multiAddHandle(m_multi, transfer->handle());
}

void NetworkThread::finishDone()
{
    int left = 0;
    while (const CURLMsg* const message = curl().multiInfoRead(m_multi, &left)) {
        if (message->msg != CURLMSG_DONE) {
            continue;
        }
        const CURLcode result = message->data.result;
        Transfer* done = nullptr;
        curl().easyGetinfo(message->easy_handle, CURLINFO_PRIVATE, &done);
        curl().multiRemoveHandle(m_multi, message->easy_handle);
        const std::shared_ptr<Transfer> transfer = m_running.at(done);
        if (transfer->hopEnded(result)) {
            add(transfer);
        } else {
            m_waiting.didEnd(*transfer);
            m_running.erase(done);
        }
    }
}

void NetworkThread::failOverdue()
{
    const Clock::time_point now = Clock::now();
    if (now < m_nextDeadline) {
        return;
    }
    m_nextDeadline = Clock::time_point::max();
    std::vector<std::shared_ptr<Transfer>> overdue;
    for (const auto& [key, transfer] : m_running) {
        const Clock::time_point deadline = transfer->deadline();
        if (deadline <= now) {
            overdue.push_back(transfer);
        } else {
            m_nextDeadline = std::min(m_nextDeadline, deadline);
        }
    }
    for (const auto& transfer : overdue) {
        remove(transfer);
        transfer->fail(URLErrorCode::TimedOut);
    }
}

void NetworkThread::remove(const std::shared_ptr<Transfer>& transfer)
{
    curl().multiRemoveHandle(m_multi, transfer->handle());
    m_waiting.didEnd(*transfer);
    m_running.erase(transfer.get());
}

} // namespace lodestar

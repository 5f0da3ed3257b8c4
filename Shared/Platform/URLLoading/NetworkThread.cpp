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

constexpr std::size_t waitingBytesLimit = 24UL * 1024 * 1024;
// libcurl checks each connection at every turn of the loop: thousands would cost more than they save.
constexpr std::size_t mostConnectionsAhead = 600;
constexpr std::size_t descriptorsForOthers = 256;
// So few transfers, all to one console, keep no machine busy: each may have a new connection.
constexpr std::size_t fewTransfers = 6;
constexpr int longestWait = 60'000; ///< milliseconds

std::atomic<NetworkThread*> theThread{nullptr};
std::atomic<bool> readersAwaited{false};
std::atomic<std::size_t> underWay{0};

/// Half of the descriptors is for connections in use, half for kept ones.
std::size_t descriptorLimit()
{
    static const std::size_t limit = [] {
        rlimit files{};
        getrlimit(RLIMIT_NOFILE, &files);
        const std::size_t all = std::min<std::size_t>(files.rlim_cur, 16'384);
        return (all > 2 * descriptorsForOthers ? all - descriptorsForOthers : all / 2) / 2;
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
        HeldBytes::setGivenBack(&readerCaughtUp);
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
            return; // the thread was woken already
        }
    }
    wake();
}

void NetworkThread::expect(const std::string& url, int transfers)
{
    {
        const std::lock_guard lock(m_inboxMutex);
        m_expected.emplace_back(Transfer::serverOf(url), transfers);
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

bool NetworkThread::isQuiet()
{
    return underWay.load() == 0;
}

void NetworkThread::wake() const
{
    // Without a multi handle the thread has not looked at the inbox yet and needs no wake.
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
    curl().multiSetopt(multi, CURLMOPT_MAXCONNECTS, static_cast<long>(descriptorLimit()));
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
        const Clock::time_point before = Clock::now();
        openAhead(before);
        letFleetRest(before);
        curl().multiPoll(multi, nullptr, 0, waitTime(), nullptr);
        m_idleness.waited(before, Clock::now());
        int running = 0;
        curl().multiPerform(multi, &running);
        finishDone();
        m_paused.turn(Clock::now(), m_running.size(), [this](Transfer& ended) {
            curl().multiRemoveHandle(m_multi, ended.handle());
            finishHop(&ended, Transfer::refusedResult);
        });
        failOverdue();
        underWay = m_running.size();
    }
}

/// In milliseconds. libcurl shortens the wait by itself for its own timers.
int NetworkThread::waitTime()
{
    if (std::exchange(m_hasReleased, false)) {
        return 0;
    }
    const Clock::time_point now = Clock::now();
    Clock::time_point until = std::min(m_nextDeadline, m_ahead.nextClose());
    if (!m_waiting.empty() || (m_waiting.expectsAny() && !m_idleness.isIdle())) {
        until = std::min(until, now + Idleness::period);
    }
    if (!m_paused.empty() || m_fleetRests) {
        until = std::min(until, now + PausedTransfers::period);
    }
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
    std::vector<std::pair<std::string, int>> expected;
    {
        const std::lock_guard lock(m_inboxMutex);
        started.swap(m_started);
        cancelled.swap(m_cancelled);
        expected.swap(m_expected);
    }
    if (!started.empty()) {
        m_idleness.reset(Clock::now());
    }
    for (const auto& [server, transfers] : expected) {
        m_waiting.expect(server, transfers);
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
    const Clock::time_point now = Clock::now();
    while (const std::shared_ptr<Transfer> transfer = nextToStart(now)) {
        begin(transfer);
    }
}

void NetworkThread::begin(const std::shared_ptr<Transfer>& transfer)
{
    std::optional<ConnectionHandle> ahead;
    if (!m_waiting.hasFreeConnection(transfer->server()) && transfer->mayTakeConnectionAhead()) {
        ahead = m_ahead.take(transfer->server());
        m_hasReleased = m_hasReleased || ahead;
    }
    transfer->setWhenPaused([this](Transfer& paused) { m_paused.add(paused); });
    m_waiting.didStart(*transfer);
    if (transfer->start(std::move(ahead))) {
        m_running.emplace(transfer.get(), transfer);
        m_persons += transfer->urgency() == Urgency::Person ? 1U : 0U;
        add(transfer);
    } else {
        m_waiting.didEnd(*transfer);
    }
}

/// Null when nothing waits, or when everything that waits must keep waiting.
std::shared_ptr<Transfer> NetworkThread::nextToStart(Clock::time_point now)
{
    using Connections = TransferQueue::Connections;
    using Whose = TransferQueue::Whose;
    if (m_waiting.empty() || m_running.size() >= descriptorLimit()) {
        return nullptr;
    }
    const bool alone = m_running.empty();
    const TransferLimits& limits = TransferLimits::shared();
    const std::size_t most = m_idleness.isIdleForLong() ? limits.connectionsOfSlowNetwork : limits.connections;
    return m_waiting.take(
        mayConnectMore(most) ? Connections::Make : Connections::Have,
        alone || readersKeepUp() ? Whose::Everybodys : Whose::Persons,
        [this](const std::string& server) { return m_ahead.hasReady(server) ? 1 : 0; }, now);
}

/// The rule for the fleet: more connections when the thread is idle and `most` allows.
bool NetworkThread::mayConnectMore(std::size_t most) const
{
    const bool isIdle = m_idleness.isIdle() || m_running.size() < fewTransfers;
    return isIdle && m_running.size() + m_waiting.freeConnections() + m_ahead.count() < most;
}

/// Opens connections for persons at once, and for expected transfers when the thread is idle.
void NetworkThread::openAhead(Clock::time_point now)
{
    m_hasReleased = m_ahead.closeOld(m_multi, now) || m_hasReleased;
    const auto ahead = [this](const std::string& server) { return m_ahead.count(server); };
    const auto openWhile = [this, now](auto mayOpen) {
        return [this, now, mayOpen](const std::string& server, std::size_t connections) {
            while (connections-- > 0 && m_ahead.count() < mostConnectionsAhead && mayOpen()) {
                m_ahead.open(m_multi, server, now);
            }
        };
    };
    m_waiting.forEachPersonsWant(ahead,
                                 openWhile([this] { return m_running.size() + m_ahead.count() < descriptorLimit(); }));
    if (m_waiting.expectsAny()) {
        m_waiting.forEachExpectedWant(
            ahead, openWhile([this] { return mayConnectMore(TransferLimits::shared().connections); }));
    }
}

/// Pauses the fleet's bodies while a person's answer comes in, so that the answer has the processor and the network.
void NetworkThread::letFleetRest(Clock::time_point now)
{
    const bool rests = m_persons > 0 && std::ranges::any_of(m_running, [now](const auto& one) {
                           return one.second->goesBeforeOthers(now);
                       });
    if (!rests && !m_fleetRests) {
        return;
    }
    m_fleetRests = rests;
    for (const auto& [key, transfer] : m_running) {
        if (transfer->urgency() == Urgency::Fleet) {
            transfer->rest(rests);
        }
    }
}

bool NetworkThread::readersKeepUp()
{
    if (HeldBytes::waitingForReaders() < waitingBytesLimit) {
        return true;
    }
    readersAwaited = true;
    // Asks again, because a reader may have finished before the flag was set.
    return HeldBytes::waitingForReaders() < waitingBytesLimit;
}

void NetworkThread::add(const std::shared_ptr<Transfer>& transfer)
{
    m_nextDeadline = std::min(m_nextDeadline, transfer->deadline());
    // A handle that was made ahead is in the multi handle already; libcurl then refuses to add it again.
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
        CURL* const easy = message->easy_handle;
        curl().easyGetinfo(easy, CURLINFO_PRIVATE, &done);
        curl().multiRemoveHandle(m_multi, easy);
        if (done == nullptr) {
            m_ahead.failed(easy, Clock::now());
            continue;
        }
        finishHop(done, result);
    }
}

/// Call it after the handle was removed from the multi handle.
void NetworkThread::finishHop(Transfer* done, CURLcode result)
{
    const std::shared_ptr<Transfer> transfer = m_running.at(done); // a copy, because the entry may be erased
    m_paused.forget(*transfer);
    if (transfer->hopEnded(result)) {
        add(transfer);
    } else {
        forget(transfer);
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
    m_paused.forget(*transfer);
    forget(transfer);
}

void NetworkThread::forget(const std::shared_ptr<Transfer>& transfer)
{
    m_waiting.didEnd(*transfer);
    m_running.erase(transfer.get());
    m_persons -= transfer->urgency() == Urgency::Person ? 1U : 0U;
}

} // namespace lodestar

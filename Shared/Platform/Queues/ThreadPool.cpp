// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/ThreadPool.h"

#include "Platform/MemoryReserve.h"
#include "Platform/Queues/OwnThread.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace lodestar
{

namespace
{

using Clock = std::chrono::steady_clock;

struct Job {
    Task block;
    std::shared_ptr<ThreadPool::Owner> owner;
    bool isUrgent = false;

    void run() noexcept
    {
        if (owner != nullptr) {
            owner->run(block);
        } else {
            block();
        }
    }
};

/// An idle thread. Each has its own condition, so that the pool can wake the one that slept last: its cache is warm,
/// and the others reach their idle limit and end.
struct Sleeper {
    std::condition_variable condition;
    bool woken = false;
};

void relax()
{
#if defined(__x86_64__) || defined(__i386__)
    __builtin_ia32_pause();
#elif defined(__aarch64__)
    __asm__ __volatile__("yield");
#endif
}

std::chrono::nanoseconds processTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::size_t coreCount()
{
    return std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

} // namespace

/// The pool's state, shared with its threads: a thread may outlive the pool object by a few instructions.
///
/// How wake-ups stay cheap: at most one thread at a time is `searching` (woken or looking, without a job). While one
/// searches, `submit` wakes nobody. A searching thread that finds a job first passes the search on if more jobs wait,
/// then runs the job. So a burst of jobs costs one wake-up for each thread, not for each job, and no job is overlooked.
struct ThreadPool::State : std::enable_shared_from_this<ThreadPool::State> {
    explicit State(Limits poolLimits) : limits(poolLimits) {}

    void submit(Job job);
    void stop(std::chrono::milliseconds limit);
    bool hasJobs() const { return !jobs.empty() || !urgentJobs.empty(); }

    void work();
    bool nextJob(Job& job, std::unique_lock<std::mutex>& lock);
    bool waitForJobs(std::unique_lock<std::mutex>& lock);
    bool sleep(std::unique_lock<std::mutex>& lock);
    void look() const;
    void callForHelp();
    void startThread();
    void startWatching();
    void beginTick(Clock::time_point now, std::chrono::nanoseconds used);
    void watch();
    void growWhenStuck();

    const Limits limits;
    mutable std::mutex mutex;
    std::deque<Job> urgentJobs;
    std::deque<Job> jobs;
    std::atomic<bool> jobsWait{false}; ///< same as `hasJobs()`, for a thread that looks without the lock
    std::vector<Sleeper*> sleepers;
    std::size_t searching = 0;
    std::size_t threads = 0;
    std::size_t running = 0;
    bool stopped = false; ///< no more jobs start
    std::condition_variable quiet;

    bool watcherExists = false;
    bool watching = false; ///< at the last tick, jobs waited and every thread had one
    std::condition_variable watcherCondition;
    std::uint64_t submitted = 0;
    std::uint64_t started = 0;
    std::uint64_t submittedAtTick = 0;
    std::uint64_t startedAtTick = 0;
    std::chrono::nanoseconds processTimeAtTick{};
    Clock::time_point tickTime;
};

namespace
{
/// The pool whose job this thread is running. A job that ends the process must not wait for itself.
thread_local const void* t_runningPool = nullptr;
thread_local bool t_jobsAreUrgent = false;
} // namespace

void ThreadPool::State::submit(Job job)
{
    const std::lock_guard lock(mutex);
    (job.isUrgent ? urgentJobs : jobs).push_back(std::move(job));
    ++submitted;
    jobsWait.store(true, std::memory_order_relaxed);
    if (searching == 0) {
        callForHelp();
    }
}

/// Call with the lock held, when jobs wait and nobody searches. Gets a thread to search; if none is to be had, starts
/// watching the wait.
void ThreadPool::State::callForHelp()
{
    if (stopped) {
        return;
    }
    if (!sleepers.empty()) {
        Sleeper* sleeper = sleepers.back();
        sleepers.pop_back();
        sleeper->woken = true;
        ++searching;
        sleeper->condition.notify_one();
    } else if (threads < limits.threads) {
        startThread();
    } else if (!watching && threads < limits.maximumThreads) {
        startWatching();
    }
}

/// Call with the lock held. When no thread can be made for the watcher, the pool goes on with the threads that it has.
void ThreadPool::State::startWatching()
{
    if (!watcherExists) {
        try {
            std::thread([state = shared_from_this()] { state->watch(); }).detach();
        } catch (const std::system_error&) {
            return;
        }
        watcherExists = true;
    }
    watching = true;
    beginTick(Clock::now(), processTime());
    watcherCondition.notify_all();
}

void ThreadPool::State::beginTick(Clock::time_point now, std::chrono::nanoseconds used)
{
    submittedAtTick = submitted;
    startedAtTick = started;
    processTimeAtTick = used;
    tickTime = now;
}

/// Call with the lock held. The new thread counts as searching at once, like a woken one.
void ThreadPool::State::startThread()
{
    try {
        std::thread([state = shared_from_this()] { state->work(); }).detach();
        ++threads;
        ++searching;
    } catch (const std::system_error&) {
        // The system gives no more threads. Without any thread no job would ever run, so that is an error; otherwise
        // the existing threads do the work.
        if (threads == 0) {
            throw;
        }
    }
}

void ThreadPool::State::work()
{
    const OwnThread thread("lodestar-pool");
    // The main thread draws and takes input: it goes first where the processor is short.
    OwnThread::takeLowPriority();
    std::unique_lock lock(mutex);
    Job job;
    while (nextJob(job, lock)) {
        ++running;
        lock.unlock();
        t_runningPool = this;
        t_jobsAreUrgent = job.isUrgent;
        job.run();
        job = Job();
        t_runningPool = nullptr;
        lock.lock();
        --running;
        if (stopped) {
            quiet.notify_all();
        }
        ++searching;
    }
    --threads;
}

/// Call with the lock held, while the caller counts as searching; on return it no longer does. False when the thread
/// must end.
bool ThreadPool::State::nextJob(Job& job, std::unique_lock<std::mutex>& lock)
{
    while (!hasJobs() || stopped) {
        if (!waitForJobs(lock)) {
            return false;
        }
    }
    std::deque<Job>& first = urgentJobs.empty() ? jobs : urgentJobs;
    job = std::move(first.front());
    first.pop_front();
    ++started;
    --searching;
    if (!hasJobs()) {
        jobsWait.store(false, std::memory_order_relaxed);
    } else if (searching == 0) {
        callForHelp();
    }
    return true;
}

/// Looks for a job for a moment, then sleeps. Call it as `nextJob`; when it returns true, the caller still counts as
/// searching.
bool ThreadPool::State::waitForJobs(std::unique_lock<std::mutex>& lock)
{
    if (!stopped && searching == 1) {
        lock.unlock();
        look();
        lock.lock();
        if (hasJobs() && !stopped) {
            return true;
        }
    }
    --searching;
    return !stopped && sleep(lock);
}

/// Spins for a few microseconds, so that a chain of short blocks needs no system call for each block.
void ThreadPool::State::look() const
{
    for (int i = 0; i < 200 && !jobsWait.load(std::memory_order_relaxed); ++i) {
        relax();
    }
}

bool ThreadPool::State::sleep(std::unique_lock<std::mutex>& lock)
{
    MemoryReserve::topUp();
    Sleeper self;
    sleepers.push_back(&self);
    const auto deadline = Clock::now() + limits.idleLimit;
    while (!self.woken) {
        if (threads <= limits.threads) {
            self.condition.wait(lock);
        } else if (self.condition.wait_until(lock, deadline) == std::cv_status::timeout && !self.woken &&
                   threads > limits.threads) {
            sleepers.erase(std::find(sleepers.begin(), sleepers.end(), &self));
            return false;
        }
    }
    return true;
}

void ThreadPool::State::watch()
{
    const OwnThread thread("lodestar-watch");
    std::unique_lock lock(mutex);
    while (!stopped) {
        if (!watching) {
            watcherCondition.wait(lock);
            continue;
        }
        watcherCondition.wait_until(lock, tickTime + limits.tick);
        if (Clock::now() >= tickTime + limits.tick) {
            growWhenStuck();
        }
    }
}

/// Called with the lock held, once a tick while jobs wait. When no job started during the tick, the running jobs block:
/// the number of threads grows by half. When some started, but a job of the last tick still waits and the processor was
/// idle: one more thread. When the processor was busy, more threads would not help.
void ThreadPool::State::growWhenStuck()
{
    const auto now = Clock::now();
    const auto used = processTime();
    const auto capacity = (now - tickTime) * static_cast<std::int64_t>(coreCount());
    const bool someWait = started < submittedAtTick;
    const bool noneStarted = started == startedAtTick;
    const bool processorIdle = (used - processTimeAtTick) * 4 < capacity * 3;
    beginTick(now, used);
    if (!hasJobs() || threads >= limits.maximumThreads) {
        watching = false;
        return;
    }
    if (someWait && (noneStarted || processorIdle)) {
        const std::size_t wanted = noneStarted ? std::min(jobs.size() + urgentJobs.size(), threads / 2 + 1) : 1;
        for (std::size_t i = 0; i < wanted && threads < limits.maximumThreads; ++i) {
            startThread();
        }
    }
}

void ThreadPool::State::stop(std::chrono::milliseconds limit)
{
    std::unique_lock lock(mutex);
    stopped = true;
    watcherCondition.notify_all();
    const std::size_t own = t_runningPool == this ? 1 : 0;
    quiet.wait_for(lock, limit, [&] { return running <= own; });
}

ThreadPool& ThreadPool::shared()
{
    // Never destroyed: blocks may come from anywhere until the very end of the process.
    static ThreadPool* const pool = [] {
        std::atexit([] { shared().stop(std::chrono::milliseconds(250)); });
        const std::size_t threads = std::max<std::size_t>(coreCount(), 4);
        return new ThreadPool({threads, std::max<std::size_t>(threads, 128), std::chrono::milliseconds(5),
                               std::chrono::milliseconds(5000)});
    }();
    return *pool;
}

ThreadPool::ThreadPool(Limits limits) : m_state(std::make_shared<State>(limits)) {}

ThreadPool::~ThreadPool()
{
    m_state->stop(std::chrono::hours(24));
}

void ThreadPool::submit(Task block, std::shared_ptr<Owner> owner)
{
    m_state->submit({std::move(block), std::move(owner), t_jobsAreUrgent});
}

ThreadPool::UrgentScope::UrgentScope(bool isUrgent) : m_before(t_jobsAreUrgent)
{
    t_jobsAreUrgent = isUrgent || m_before;
}

ThreadPool::UrgentScope::~UrgentScope()
{
    t_jobsAreUrgent = m_before;
}

void ThreadPool::stop(std::chrono::milliseconds limit)
{
    m_state->stop(limit);
}

std::size_t ThreadPool::threadCount() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->threads;
}

} // namespace lodestar

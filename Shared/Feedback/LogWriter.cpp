// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LogWriter.h"

#include "Platform/Queues/OwnThread.h"

#include <fmt/core.h>

#include <chrono>
#include <cstdlib>
#include <utility>

namespace lodestar
{

namespace
{
constexpr std::size_t mostPending = std::size_t{1} << 20;
constexpr std::size_t enoughPending = std::size_t{64} << 10;
/// Lines are collected for this long before they are written, so that a burst wakes the thread once.
constexpr std::chrono::milliseconds gathering(100);
} // namespace

LogWriter& LogWriter::shared()
{
    // Never destroyed: threads log until the very end. Lines that are logged after the exit handler ran are lost.
    static auto& writer = *[] {
        auto* created = new LogWriter;
        std::atexit([] { LogWriter::shared().stop(); });
        return created;
    }();
    return writer;
}

bool LogWriter::open(const std::string& folder, const std::string& name, const std::string& header)
{
    auto file = std::make_unique<RotatingLogFile>();
    file->setHeader(header);
    if (!file->open(folder, name, {})) {
        return false;
    }
    const std::lock_guard fileLock(m_fileMutex);
    writePending();
    m_file = std::move(file);
    m_open.store(true, std::memory_order_relaxed);
    const std::lock_guard lock(m_mutex);
    if (!m_thread.joinable() && !m_stopping) {
        m_thread = std::thread([this] { run(); });
    }
    return true;
}

void LogWriter::append(std::string_view line)
{
    if (!isOpen()) {
        return;
    }
    bool wake = false;
    {
        const std::lock_guard lock(m_mutex);
        m_lastLines.append(line);
        const std::size_t before = m_pending.size();
        if (before + line.size() > mostPending) {
            ++m_linesDropped;
            return;
        }
        m_pending.append(line);
        wake = before == 0 || (before < enoughPending && m_pending.size() >= enoughPending);
    }
    if (wake) {
        m_changed.notify_one();
    }
}

void LogWriter::flush()
{
    const std::lock_guard fileLock(m_fileMutex);
    writePending();
}

void LogWriter::forget()
{
    const std::lock_guard fileLock(m_fileMutex);
    {
        const std::lock_guard lock(m_mutex);
        m_pending.clear();
        m_linesDropped = 0;
        m_lastLines.clear();
    }
    m_file->empty();
}

/// Call with `m_fileMutex` held.
void LogWriter::writePending()
{
    std::size_t dropped = 0;
    m_writing.clear();
    {
        const std::lock_guard lock(m_mutex);
        m_writing.swap(m_pending);
        dropped = std::exchange(m_linesDropped, 0);
    }
    m_file->append(m_writing);
    if (dropped > 0) {
        m_file->append(fmt::format("({} lines of log came too fast to be written)\n", dropped));
    }
}

void LogWriter::run()
{
    const OwnThread thread("lodestar-log");
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        m_changed.wait(lock, [this] { return m_stopping || !m_pending.empty(); });
        m_changed.wait_for(lock, gathering, [this] { return m_stopping || m_pending.size() >= enoughPending; });
        lock.unlock();
        flush();
        lock.lock();
    }
}

void LogWriter::stop()
{
    std::thread thread;
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        thread = std::move(m_thread);
    }
    m_changed.notify_one();
    if (thread.joinable()) {
        thread.join();
    }
    flush();
}

} // namespace lodestar

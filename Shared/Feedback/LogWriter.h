// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/LastLines.h"
#include "Feedback/RotatingLogFile.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace lodestar
{

/// Carries lines to the log file on a thread of its own, so that no caller ever waits for the disk. Thread-safe.
class LogWriter
{
public:
    /// The process's writer; it writes what is left when the process exits.
    static LogWriter& shared();

    /// What was buffered goes to the file that was open. False, and nothing changes, when the file cannot be opened.
    bool open(const std::string& folder, const std::string& name, const std::string& header);
    bool isOpen() const { return m_open.load(std::memory_order_relaxed); }
    /// Buffers one line, its line feed included; beyond a megabyte that the disk has not taken, lines are dropped and
    /// counted instead.
    void append(std::string_view line);
    void flush();
    /// Drops all that has been logged, on the disk too.
    void forget();
    /// What was logged last, for a crash.
    const LastLines& lastLines() const { return m_lastLines; }

private:
    LogWriter() = default;
    void run();
    void writePending();
    void stop();

    std::atomic<bool> m_open = false;
    std::mutex m_mutex; ///< guards what follows; held for no longer than a copy into the buffer
    std::condition_variable m_changed;
    std::string m_pending;
    LastLines m_lastLines;
    std::size_t m_linesDropped = 0;
    bool m_stopping = false;
    std::thread m_thread;
    std::mutex m_fileMutex; ///< guards what follows; taken before the other
    RotatingLogFile m_file;
    std::string m_writing; ///< changes places with `m_pending`, so that neither is allocated anew
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/LastLines.h"
#include "Feedback/RotatingLogFile.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace lodestar
{

/// Writes lines to the log file on its own thread, so that no caller waits for the disk. Thread-safe.
class LogWriter
{
public:
    /// The process's writer. It writes the buffered rest when the process exits.
    static LogWriter& shared();

    /// Opens another file; buffered lines still go to the file that was open before. False, with nothing changed, when
    /// the file cannot be opened.
    bool open(const std::string& folder, const std::string& name, const std::string& header);
    bool isOpen() const { return m_open.load(std::memory_order_relaxed); }
    /// Buffers one line, which ends with a line feed. While more than a megabyte waits for the disk, lines are dropped
    /// and counted.
    void append(std::string_view line);
    void flush();
    /// Deletes everything logged so far, on the disk too.
    void forget();
    /// Debug builds copy each line to standard error, unless a program has words of its own to write there.
    std::atomic<bool> mayCopyToStandardError = true;
    /// The lines logged last, for a crash.
    const LastLines& lastLines() const { return m_lastLines; }

private:
    LogWriter() = default;
    void run();
    void writePending();
    void stop();

    std::atomic<bool> m_open = false;
    std::mutex m_mutex; ///< guards the members below; held only for a copy into the buffer
    std::condition_variable m_changed;
    std::string m_pending;
    LastLines m_lastLines;
    std::size_t m_linesDropped = 0;
    bool m_stopping = false;
    std::thread m_thread;
    std::mutex m_fileMutex; ///< guards the members below; taken before `m_mutex`
    std::unique_ptr<RotatingLogFile> m_file = std::make_unique<RotatingLogFile>();
    std::string m_writing; ///< swapped with `m_pending`, so that neither is allocated again
};

} // namespace lodestar

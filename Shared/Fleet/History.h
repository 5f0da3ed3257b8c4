// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Change.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// The changes of the last 30 days, what is remembered of each console, and the settings of Watch: the file
/// "History.sqlite" in the documents folder. No feed, no password and no key ever goes into it.
///
/// A queue of its own does all reading and writing; the functions return at once. Any thread, unless a function says
/// otherwise. A damaged file is set aside under another name and said so in the log; a file that cannot be opened
/// leaves the history in memory. A kill loses at most the refresh that runs.
class History
{
public:
    static History& shared();

    static constexpr std::chrono::days keptFor = changesKeptFor;
    static constexpr std::size_t mostRows = mostChangesKept;

    /// Opens or makes the file, off the main thread. What is asked for in the meantime is answered from what is known
    /// already; "HistoryDidChange" says that more is known.
    void open(const std::string& folder);
    /// Calls the function on the main thread once the memory of the consoles and the settings are known, if `open` was
    /// called before.
    void whenOpen(std::function<void()> known);
    /// Whether the file was damaged and had to be set aside, so that changes of the days that are kept are missing.
    /// True from then on until these days are over, also in later runs; "HistoryDidChange" says when it becomes true.
    bool wasSetAside() const;

    /// Compares the console's reading with what is remembered, keeps what changed, and posts "HistoryDidChange" on the
    /// main thread when something did.
    void add(const CorvelRef& corvel, const std::shared_ptr<const Reading>& reading,
             const std::shared_ptr<const FeedDictionary>& feeds);
    /// What is remembered of the console with the address; null when nothing is. Two records with one address are one
    /// console here.
    std::shared_ptr<const ConsoleMemory> memoryOf(const std::string& address) const;
    /// Says that the object's stop is expected until it runs again.
    void expectStop(const std::string& address, const ObjectKey& object);

    /// Everything that is kept, on the main thread.
    void changes(std::function<void(std::shared_ptr<const ChangeList>)> then) const;
    /// What the readings that end from now on change: Watch's news. Called on the history's queue. One listener.
    void setListener(std::function<void(const std::vector<Change>&)> listener);
    /// Calls the function on the main thread once everything that was added so far is compared and written.
    void whenWritten(std::function<void()> then) const;

    /// Leaves no byte of the console in the file, nor a file that was set aside.
    void forget(const std::string& address);
    /// Removes the file, settings included, also one that another version of the application left. Waits for the queue:
    /// a reset may only count as done when nothing is left.
    void forgetAll();
    /// Forgets consoles that are not registered any more: their deletion may have been cut short.
    void forgetAllBut(std::vector<std::string> addresses);

    std::optional<std::string> setting(const std::string& name) const;
    void setSetting(const std::string& name, std::optional<std::string> value);

    /// Writes what waits, closes the file and drops what is known. Waits for the queue.
    void close();

private:
    History();
    ~History() = default;
    struct State;
    const std::unique_ptr<State> m_state;
};

/// Opens the history for the registered consoles: forgets those that are not registered any more, and tells the
/// readings what earlier runs of the application knew. Main thread.
void openHistory(const std::string& folder);

} // namespace lodestar

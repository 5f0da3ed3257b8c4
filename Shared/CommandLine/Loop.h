// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <optional>

namespace lodestar
{

/// The main thread's loop in a process without a display: runs the main queue's blocks and sleeps in between. One in
/// the process. While it lives, SIGINT, SIGTERM and SIGHUP end a wait instead of the process, the first time; and a
/// closed pipe is an error of the writing call.
class Loop
{
public:
    enum class End {
        Met,
        TimedOut,
        Interrupted, ///< by a signal
        Closed       ///< nobody reads the output any more; only after `watchOutput`
    };

    Loop();
    ~Loop();
    Loop(const Loop&) = delete;
    Loop& operator=(const Loop&) = delete;

    /// Runs until the predicate holds, which is asked after each turn, or until the time is over.
    End runUntil(const std::function<bool()>& predicate, std::optional<std::chrono::milliseconds> limit = {});
    /// From now on a wait ends, too, when nobody reads the descriptor any more: for what writes until it is ended.
    void watchOutput(int descriptor) { m_output = descriptor; }
    /// The signal that came; 0 for none.
    static int signal();

private:
    int m_output = -1;
};

} // namespace lodestar

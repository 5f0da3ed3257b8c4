// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

namespace lodestar
{

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread, so that the process
/// ends as if its window had been closed. Does nothing on systems without these signals. Main thread, one at a time.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> terminate);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace lodestar

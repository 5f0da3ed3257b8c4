// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace lodestar
{

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread, so that the process
/// ends as if its window had been closed. Main thread, one at a time.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> terminate);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    const std::function<void()> m_terminate;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace lodestar

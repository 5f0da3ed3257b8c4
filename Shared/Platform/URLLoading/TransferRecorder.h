// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/ConnectionHandle.h"
#include "Platform/URLLoading/TransferRecord.h"

#include <chrono>
#include <optional>

struct ssl_st;

namespace lodestar
{

/// Fills in a transfer's record while it runs. One thread at a time.
class TransferRecorder
{
public:
    using Clock = std::chrono::steady_clock;

    TransferRecorder() { m_record.began = std::chrono::system_clock::now(); }

    /// The transport turns to the request.
    void started(Clock::time_point made, Clock::time_point now);
    /// A connection is ready for the request and has shown the certificate.
    void connected(const ConnectionHandle& handle, TransferRecord::Connection connection, const ssl_st* secured,
                   const ServerCertificate& certificate, Clock::time_point now);
    void answered(Clock::time_point now);
    void redirectedTooOften() { m_record.redirectedTooOften = true; }
    /// Completes the record with what libcurl still tells of the last handle, which may have no connection.
    TransferRecord ended(const ConnectionHandle& handle, Clock::time_point made, Clock::time_point now);

private:
    static TransferRecord::Duration elapsed(Clock::time_point from, Clock::time_point to)
    {
        return std::chrono::duration_cast<TransferRecord::Duration>(to - from);
    }
    void readSteps(const ConnectionHandle& handle);
    void readStepsOfFailure(const ConnectionHandle& handle);

    TransferRecord m_record;
    Clock::time_point m_started;
    std::optional<Clock::time_point> m_ready;
};

} // namespace lodestar

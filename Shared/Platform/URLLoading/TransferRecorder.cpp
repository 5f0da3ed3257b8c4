// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/TransferRecorder.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

using Duration = TransferRecord::Duration;

/// Since libcurl began with the handle; none when the moment has not come.
std::optional<Duration> momentOf(CURL* easy, CURLINFO which)
{
    curl_off_t microseconds = 0;
    curl().easyGetinfo(easy, which, &microseconds);
    return microseconds > 0 ? std::optional(Duration(microseconds)) : std::nullopt;
}

} // namespace

void TransferRecorder::started(Clock::time_point made, Clock::time_point now)
{
    m_started = now;
    m_record.waited = elapsed(made, now);
}

void TransferRecorder::connected(const ConnectionHandle& handle, TransferRecord::Connection connection,
                                 const ssl_st* secured, const ServerCertificate& certificate, Clock::time_point now)
{
    m_record.certificate = certificate;
    // A redirect may lead to a second connection; the record tells of the first. But a kept connection may have been
    // refused, and then the one made in its place counts.
    if (connection <= m_record.connection) {
        return;
    }
    m_record.connection = connection;
    m_ready = now;
    if (connection == TransferRecord::Connection::Made) {
        readSteps(handle);
    }
    const char* address = nullptr;
    curl().easyGetinfo(handle.easy.get(), CURLINFO_PRIMARY_IP, &address);
    m_record.address = address != nullptr ? address : "";
    m_record.tlsVersion = curl().tlsVersionOfConnection(secured);
}

void TransferRecorder::answered(Clock::time_point now)
{
    if (m_ready) {
        m_record.answer = elapsed(*m_ready, now);
    }
}

/// libcurl counts from one beginning to the end of each step.
void TransferRecorder::readSteps(const ConnectionHandle& handle)
{
    CURL* const easy = handle.easy.get();
    m_record.name = momentOf(easy, CURLINFO_NAMELOOKUP_TIME_T);
    const auto connected = momentOf(easy, CURLINFO_CONNECT_TIME_T);
    const auto secured = momentOf(easy, CURLINFO_APPCONNECT_TIME_T);
    if (connected) {
        m_record.connect = std::max(Duration(0), *connected - m_record.name.value_or(Duration(0)));
    }
    if (connected && secured) {
        const Duration held = handle.hold != nullptr ? handle.hold->heldFor() : Duration(0);
        m_record.secure = std::max(Duration(0), *secured - *connected - held);
    }
}

/// libcurl tells when the server was reached only once the handshake has succeeded.
void TransferRecorder::readStepsOfFailure(const ConnectionHandle& handle)
{
    readSteps(handle);
    const auto handshake = handle.handshake != nullptr ? handle.handshake->at : std::nullopt;
    if (handshake && !m_record.connect) {
        m_record.connect = std::max(Duration(0), elapsed(m_started, *handshake) - m_record.name.value_or(Duration(0)));
    }
}

TransferRecord TransferRecorder::ended(const ConnectionHandle& handle, Clock::time_point made, Clock::time_point now)
{
    m_record.total = elapsed(made, now);
    if (m_ready) {
        m_record.exchange = elapsed(*m_ready, now);
    } else if (handle.easy != nullptr) {
        readStepsOfFailure(handle);
    }
    return std::move(m_record);
}

} // namespace lodestar

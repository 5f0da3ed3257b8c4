// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/Transfer.h"

#include "Platform/Queues/ThreadPool.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

namespace
{

/// A console needs so long for an answer that a screen shows. No longer: persons may wait behind this transfer, too.
constexpr std::chrono::milliseconds longestPrecedence{250};

} // namespace

Transfer::Transfer(URLRequest request, std::shared_ptr<TransferClient> client)
    : m_limits(TransferLimits::shared()),
      m_server(serverOf(request.url)),
      m_request(std::move(request)),
      m_client(std::move(client)),
      m_held(m_server)
{
    if (m_request.timeout.count() <= 0) {
        m_request.timeout = URLRequest::defaultTimeout;
    }
}

std::string Transfer::serverOf(const std::string& url)
{
    constexpr std::string_view beforeHost = "https://";
    return url.substr(0, url.find_first_of("/?#", beforeHost.size()));
}

bool Transfer::start(std::optional<ConnectionHandle> ahead)
{
    m_started = Clock::now();
    m_recorder.started(m_made, m_started);
    m_clocksStart = urgency() == Urgency::Person ? m_made : m_started;
    m_lastProgress = m_clocksStart;
    return prepareHop(std::move(ahead));
}

/// Only GET: a connection made ahead may be lost, the request is then sent again, and a request that changes something
/// must not be sent twice.
bool Transfer::mayTakeConnectionAhead() const
{
    const auto origin = Origin::ofURL(m_request.url);
    return origin && m_request.method == "GET" && !m_client->wantsFreshHandshake(*origin);
}

bool Transfer::prepareHop(std::optional<ConnectionHandle> ahead)
{
    m_response = {};
    m_inBody = false;
    m_hasCloseNotice = false;
    m_isOnKeptConnection = false;
    m_origin = Origin::ofURL(m_request.url);
    if (m_origin && ahead) {
        m_connection = std::move(*ahead);
        curl().easySetopt(m_connection.easy.get(), CURLOPT_REQUEST_TARGET, requestTarget(m_request.url).c_str());
    } else {
        m_connection =
            m_origin ? ConnectionHandle::make(m_request.url, ConnectionHandle::Handshake::Whole) : ConnectionHandle();
    }
    if (m_connection.easy == nullptr) {
        end(urlError(m_origin ? URLErrorCode::Unknown : URLErrorCode::BadURL));
        return false;
    }
    CURL* const easy = m_connection.easy.get();
    m_headers = curlHeaders(m_request);
    curl().easySetopt(easy, CURLOPT_HTTPHEADER, m_headers.get());
    if (m_request.method != "GET" || !m_request.body.empty()) {
        curl().easySetopt(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(m_request.body.size()));
        curl().easySetopt(easy, CURLOPT_POSTFIELDS, m_request.body.data());
        curl().easySetopt(easy, CURLOPT_CUSTOMREQUEST, m_request.method.c_str());
    }
    setCallbacks();
    const bool fresh = std::exchange(m_needsFreshConnection, false) || m_client->wantsFreshHandshake(*m_origin);
    curl().easySetopt(easy, CURLOPT_FRESH_CONNECT, fresh ? 1L : 0L);
    return true;
}

/// A server may close a connection made ahead while it is idle. libcurl retries by itself for kept connections only,
/// and gives up after five of them: a server that was restarted has closed more.
bool Transfer::lostIdleConnection() const
{
    const bool lostKept = m_isOnKeptConnection && m_request.method == "GET";
    return (m_connection.hold != nullptr || lostKept) && m_received == 0 && !m_refusal;
}

bool Transfer::hopEnded(CURLcode result)
{
    if (result != CURLE_OK) {
        if (m_needsFreshConnection || lostIdleConnection()) {
            m_needsFreshConnection = m_needsFreshConnection || m_isOnKeptConnection;
            return prepareHop();
        }
        end(errorOf(result));
        return false;
    }
    if (m_response.statusCode == 0) {
        end(urlError(URLErrorCode::BadServerResponse));
        return false;
    }
    if (!bodyIsWhole()) {
        end(urlError(URLErrorCode::NetworkConnectionLost, "the body was cut"));
        return false;
    }
    if (m_next) {
        m_request = *std::exchange(m_next, std::nullopt);
        ++m_redirects;
        m_retriedFresh = false;
        return prepareHop();
    }
    end(std::nullopt);
    return false;
}

/// Checks only what libcurl cannot: libcurl itself notices a body shorter than its length and a missing last chunk.
bool Transfer::bodyIsWhole() const
{
    const bool delimited = m_response.headers.value("Content-Length") || m_response.headers.value("Transfer-Encoding");
    const bool bodiless = m_response.statusCode == 204 || m_response.statusCode == 304;
    return delimited || bodiless || m_hasCloseNotice;
}

void Transfer::fail(URLErrorCode code)
{
    end(urlError(code));
}

void Transfer::end(std::optional<Error> error)
{
    m_leavesConnection = !error && m_response.headers.value("Connection").value_or("") != "close";
    if (const auto client = std::exchange(m_client, nullptr); client != nullptr) {
        m_paused = false;
        m_held.shrinkTo(m_bodyBytes);
        tellRecord(error);
        const ThreadPool::UrgentScope forPerson(urgency() == Urgency::Person);
        client->didEnd(std::move(error), std::move(m_held));
    }
}

void Transfer::tellRecord(const std::optional<Error>& error)
{
    if (!m_request.ended) {
        return;
    }
    TransferRecord record = m_recorder.ended(m_connection, m_made, Clock::now());
    record.status = m_response.statusCode;
    record.bytes = m_response.statusCode != 0 ? m_bodyBytes : 0;
    record.error = error;
    m_request.ended(record);
}

Error Transfer::errorOf(CURLcode result) const
{
    if (m_refusal) {
        return *m_refusal;
    }
    return urlError(urlErrorCodeOfTransfer(result), curl().easyStrerror(result));
}

void Transfer::refuse(URLErrorCode code, std::string reason)
{
    m_refusal = urlError(code, std::move(reason));
}

/// Waits a fifth of the time-out at most, which leaves the rest for making a connection.
Transfer::Clock::time_point Transfer::patienceEnd() const
{
    constexpr std::chrono::milliseconds longestPatience{HandshakeHold::isPossible ? 2000 : 0};
    return m_made + std::min(longestPatience, m_request.timeout / 5);
}

Transfer::Clock::time_point Transfer::deadline() const
{
    const Clock::time_point total = m_clocksStart + m_request.timeout * std::max(m_limits.totalTimeFactor, 1);
    return m_paused ? total : std::min(m_lastProgress + m_request.timeout, total);
}

/// libcurl calls this for every connection, fresh or kept, before it sends a byte of the request.
bool Transfer::connectionReady()
{
    m_lastProgress = Clock::now();
    long connections = 0;
    curl().easyGetinfo(m_connection.easy.get(), CURLINFO_NUM_CONNECTS, &connections);
    const auto certificate = curl().certificateOfConnection(connection(), m_origin->host, m_origin->port);
    if (!certificate) {
        refuse(URLErrorCode::SecureConnectionFailed, "the server presented no certificate");
        return false;
    }
    m_unseenBefore = wireBytes() - static_cast<std::int64_t>(m_received);
    m_madeConnection = m_madeConnection || connections > 0;
    m_isOnKeptConnection = connections == 0;
    m_recorder.connected(m_connection,
                         connections > 0 ? TransferRecord::Connection::Made : TransferRecord::Connection::Kept,
                         connection(), *certificate, m_lastProgress);
    const Handshake handshake = connections > 0 ? Handshake::Fresh : Handshake::Reused;
    if (m_client->acceptsServer(*certificate, handshake)) {
        return true;
    }
    // A connection made ahead may also be older than the server's current certificate.
    const bool isOld = handshake == Handshake::Reused || m_connection.hold != nullptr;
    if (isOld && !std::exchange(m_retriedFresh, true)) {
        m_needsFreshConnection = true;
        return false;
    }
    refuse(URLErrorCode::ServerCertificateUntrusted);
    ServerTrust::shared().refuse(m_origin->host, m_origin->port, certificate->systemObjection());
    return false;
}

bool Transfer::goesBeforeOthers(Clock::time_point now) const
{
    return urgency() == Urgency::Person && now - std::max(m_started, m_answered) < longestPrecedence;
}

/// Null while there is none.
ssl_st* Transfer::connection() const
{
    curl_tlssessioninfo* session = nullptr;
    curl().easyGetinfo(m_connection.easy.get(), CURLINFO_TLS_SSL_PTR, &session);
    return session != nullptr ? static_cast<ssl_st*>(session->internals) : nullptr;
}

std::int64_t Transfer::wireBytes() const
{
    ssl_st* const open = connection();
    return open != nullptr ? static_cast<std::int64_t>(curl().wireBytesOfConnection(open)) : 0;
}

} // namespace lodestar

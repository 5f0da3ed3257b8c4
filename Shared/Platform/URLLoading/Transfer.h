// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/ConnectionHandle.h"
#include "Platform/URLLoading/HeldBytes.h"
#include "Platform/URLLoading/ServerCertificate.h"
#include "Platform/URLLoading/TransferLimits.h"
#include "Platform/URLLoading/TransferRecorder.h"
#include "Platform/URLLoading/URLError.h"
#include "Platform/URLLoading/URLRequest.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace lodestar
{

enum class Handshake { Fresh, Reused };

/// The receiver of a transfer's events. Called on the thread that drives the transfer; must not block.
class TransferClient
{
public:
    virtual ~TransferClient() = default;
    /// Called before anything is sent. False refuses the server; a refused connection that was reused is replaced by a
    /// fresh one first.
    virtual bool acceptsServer(const ServerCertificate& certificate, Handshake handshake) = 0;
    /// True when a server that was refused before needs a fresh handshake.
    virtual bool wantsFreshHandshake(const Origin& origin) const = 0;
    virtual void didReceiveResponse(const URLResponse& response) = 0;
    /// The body's bytes as they come: still packed if the response says so.
    virtual void didReceiveData(std::span<const char> data) = 0;
    /// Called last and exactly once. The held bytes are the body's share of the process's limit; keep them as long as
    /// the body waits for its reader.
    virtual void didEnd(std::optional<Error> error, HeldBytes held) = 0;
};

/// One request with its redirects, as a sequence of hops on one libcurl handle. This class holds every rule about what
/// is sent, what is accepted and how much; it does not care who drives the handle. One thread at a time.
///
/// The driver adds `handle()` to its multi handle after `start`, removes the handle when libcurl is done with it, and
/// calls `hopEnded`; when that returns true, the driver adds the handle again. To end early, the driver removes the
/// handle and calls `fail`.
class Transfer
{
public:
    using Clock = std::chrono::steady_clock;

    Transfer(URLRequest request, std::shared_ptr<TransferClient> client);
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer() = default;

    /// Starts the clocks. A person's clocks run from the transfer's creation, since the person waits from then on.
    /// False when the transfer has failed already and there is nothing to drive. `ahead` is a connection made ahead to
    /// the same server; the transfer then uses its handle.
    bool start(std::optional<ConnectionHandle> ahead = std::nullopt);
    CURL* handle() const { return m_connection.easy.get(); }
    /// Scheme, host and port of the first hop, exactly as the address has them.
    const std::string& server() const { return m_server; }
    static std::string serverOf(const std::string& url);
    Urgency urgency() const { return m_request.urgency; }
    /// Whether `start` may be given a connection that was made ahead.
    bool mayTakeConnectionAhead() const;
    /// Until this time a person's transfer waits for one of its server's connections to come free. Where no connection
    /// can be made in the meantime, there is no wait.
    Clock::time_point patienceEnd() const;
    /// Valid once the transfer has ended: whether it made a connection, and whether its connection may serve the next
    /// transfer.
    bool madeConnection() const { return m_madeConnection; }
    bool leavesConnection() const { return m_leavesConnection; }
    bool hopEnded(CURLcode result);
    void fail(URLErrorCode code);

    /// Call before `start`: a body that finds no room then waits, and the function is called. Without a function such a
    /// body is refused.
    void setWhenPaused(std::function<void(Transfer&)> whenPaused) { m_whenPaused = std::move(whenPaused); }
    bool isPaused() const { return m_paused; }
    Clock::time_point pausedSince() const { return m_pausedSince; }
    std::size_t heldBytes() const { return m_held.count(); }
    /// The bytes that a paused transfer would take at once if it went on.
    std::size_t nextHeldBytes() const { return m_nextHeld; }
    void setPausedSince(Clock::time_point since) { m_pausedSince = since; }
    void setClaim(HeldBytes::Claim claim) { m_claim = claim; }
    /// Lets a paused transfer try again. False when its hop has ended, with `refusedResult` as libcurl's result.
    bool goOn();
    /// Refuses a paused transfer for lack of room.
    void refuseForRoom();
    static constexpr CURLcode refusedResult = CURLE_WRITE_ERROR;

    /// True makes the transfer leave its body's bytes in the socket; false lets it read them again. Does nothing before
    /// the body: libcurl would hand over header lines that it held back as one line. Does nothing to a paused transfer.
    void rest(bool rests);
    /// Whether a person's answer is awaited or coming in right now.
    bool goesBeforeOthers(Clock::time_point now) const;

    /// When the transfer is overdue if nothing more arrives: the end of the idle limit or of the total limit, whichever
    /// is sooner. Monotonic clock.
    Clock::time_point deadline() const;

private:
    bool prepareHop(std::optional<ConnectionHandle> ahead = std::nullopt);
    bool lostIdleConnection() const;
    void end(std::optional<Error> error);
    void refuse(URLErrorCode code, std::string reason = {});
    bool bodyIsWhole() const;
    Error errorOf(CURLcode result) const;

    bool connectionReady();
    void tellRecord(const std::optional<Error>& error);
    bool headerLine(std::string_view line);
    bool headersComplete();
    bool bodyBytes(std::span<const char> bytes);
    bool hasRoom(std::size_t bytes);
    std::size_t nextStep() const;
    ssl_st* connection() const;
    std::int64_t wireBytes() const;
    void noteCloseNotice();
    bool framingIsBounded();
    void setCallbacks();
    template <typename Work>
    bool guarded(Work work);
    static int prerequest(void* self, char*, char*, int, int);
    static std::size_t header(char* bytes, std::size_t size, std::size_t count, void* self);
    static std::size_t body(char* bytes, std::size_t size, std::size_t count, void* self);
    static int progress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t);

    const TransferLimits m_limits;
    const std::string m_server;
    URLRequest m_request; ///< the current hop's request
    std::shared_ptr<TransferClient> m_client;
    ConnectionHandle m_connection;
    CurlList m_headers;
    std::optional<Origin> m_origin;

    const Clock::time_point m_made = Clock::now();
    Clock::time_point m_started;
    Clock::time_point m_clocksStart;
    Clock::time_point m_lastProgress;
    Clock::time_point m_answered;    ///< when the first line of the current answer came
    std::size_t m_received = 0;      ///< body and header bytes of all hops, as they came
    std::int64_t m_unseenBefore = 0; ///< bytes that the connection had received when the hop began, less `m_received`

    int m_redirects = 0;
    bool m_needsFreshConnection = false;
    bool m_retriedFresh = false;
    bool m_madeConnection = false;
    bool m_isOnKeptConnection = false; ///< from when the hop has its connection
    bool m_leavesConnection = false;
    std::size_t m_headerBytes = 0;
    std::size_t m_bodyBytes = 0; ///< the current response's body bytes, as they came
    HeldBytes m_held;
    std::size_t m_nextHeld = 0;
    std::function<void(Transfer&)> m_whenPaused;
    bool m_paused = false;
    bool m_hasPaused = false; ///< this body has paused since it last went on
    Clock::time_point m_pausedSince;
    HeldBytes::Claim m_claim = HeldBytes::Claim::Fair;

    URLResponse m_response;
    bool m_inHeaders = false;
    bool m_inBody = false;            ///< true while the hop's last response brings its body
    std::optional<URLRequest> m_next; ///< set when the current response is a redirect to follow
    bool m_hasCloseNotice = false;    ///< the server has said that it sends no more
    TransferRecorder m_recorder;
    std::optional<Error> m_refusal; ///< the reason when one of our callbacks stopped libcurl
};

} // namespace lodestar

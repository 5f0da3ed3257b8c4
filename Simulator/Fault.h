// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// The ways in which a console can misbehave.
enum class FaultName {
    /// The logon answers 401.
    RefuseLogon,
    /// The logon answers 200 without a session key.
    LogonWithoutKey,
    /// The logon answers 200 with a page, nothing, or JSON. The argument is "html" (also when left out), "empty" or
    /// "json".
    LogonNotXML,
    /// The logon answers 200 with a session key of 1 MB.
    LongKey,
    /// Every session key becomes invalid. Acts at once, and only once.
    ExpireSession,
    /// The answer is status 500.
    RefuseFeed,
    /// The answer is status 200 without a body.
    EmptyFeed,
    /// No answer is sent.
    StallFeed,
    /// Connections are accepted, and nothing is ever sent on them.
    SilentAfterAccept,
    /// The answer is sent at one byte a second.
    Trickle,
    /// The connection ends in the middle of the body.
    CutBody,
    /// The connection ends in the middle of a chunk.
    CutChunk,
    /// The answer is complete, but its compressed body is cut in the middle.
    CutGzip,
    /// The connection is reset in the middle of the body.
    Reset,
    /// The body is damaged XML.
    MalformedFeed,
    /// The body is 1 GB long.
    HugeBody,
    /// The body is compressed and small, but unpacks to 1 GB.
    GzipBomb,
    /// These are no faults: bodies of 40 MB, plain and compressed, and of 180 MB.
    LargeFeed,
    LargeGzip,
    VastFeed,
    /// 16 MB of header lines before the body.
    HugeHeaders,
    /// The extension of the first chunk goes on for 1 GB before the chunk's first byte.
    EndlessChunk,
    /// A second length, 0, is sent beside the body's own.
    TwoLengths,
    /// The answer is a redirect to its own address.
    RedirectLoop,
    /// The answer is a redirect to the same path on the next console.
    RedirectOtherHost,
    /// The console gets a new certificate and closes its connections. Acts at once, and only once.
    SwapCertificate,
    /// The answer is status 401 with a demand for HTTP basic authentication.
    BasicAuth,
    /// The console closes its connections and does not listen until the fault is cleared.
    ClosePort,
    /// The certificate has expired, or names another host. Connections are closed.
    ExpiredCertificate,
    MisnamedCertificate,
    /// This is no fault: bodies are sent whole, in chunks.
    Chunked,
    /// The usual answer is sent with status 500.
    FailedStatus,
    /// The metrics have some nulls, say that nothing was processed, or have no samples.
    NullMetrics,
    UnprocessedMetrics,
    EmptyMetrics,
};

struct Fault {
    FaultName name = FaultName::RefuseLogon;
    /// The requests that are struck: a feed's type, "Logon", "SessionCheck", "Quick", "Metrics" (their feed),
    /// "MetricsDocument" or "All". Empty for those that the fault's name implies. For `LogonNotXML` this is the
    /// argument instead.
    std::string what;
    /// None strikes every console.
    std::optional<int> console;

    /// Reads "name", "name:what", "name:console" or "name:what:console". Throws `std::invalid_argument` for anything
    /// else.
    static Fault parse(std::string_view text);

    friend bool operator==(const Fault& a, const Fault& b) = default;
};

/// The purpose of a request.
struct RequestKind {
    enum class Area { Logon, SessionCheck, Feed, Quick, Metrics, MetricsDocument, Other };

    Area area = Area::Other;
    /// The object type of a requested feed; empty for other requests.
    std::string type;
};

/// Whether the fault applies to requests of the kind.
bool strikes(const Fault& fault, const RequestKind& kind);

} // namespace lodestar::simulator

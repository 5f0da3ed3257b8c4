// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// Ways in which a console misbehaves.
enum class FaultName {
    /// The logon answers 401.
    RefuseLogon,
    /// The logon answers 200 without a session key.
    LogonWithoutKey,
    /// The logon answers 200 with a page, nothing, or JSON; argument "html" (when left out), "empty" or "json".
    LogonNotXML,
    /// The logon answers 200 with a session key of a megabyte.
    LongKey,
    /// Every session key is forgotten. At once and once.
    ExpireSession,
    /// Status 500.
    RefuseFeed,
    /// Status 200 and no body.
    EmptyFeed,
    /// Nothing is ever answered.
    StallFeed,
    /// Connections are accepted, and nothing is ever sent on them.
    SilentAfterAccept,
    /// One byte a second.
    Trickle,
    /// The connection ends in the middle of the body.
    CutBody,
    /// The connection ends in the middle of a chunk.
    CutChunk,
    /// A whole answer whose compressed body is not.
    CutGzip,
    /// The connection is reset in the middle of the body.
    Reset,
    /// Damaged XML.
    MalformedFeed,
    /// A body of 1 GB.
    HugeBody,
    /// A small compressed body that unpacks to 1 GB.
    GzipBomb,
    /// No faults: bodies of 40 MB, plain and compressed, and of 180 MB.
    LargeFeed,
    LargeGzip,
    VastFeed,
    /// 16 MB of header lines before the body.
    HugeHeaders,
    /// A chunk whose extension goes on for 1 GB before its first byte.
    EndlessChunk,
    /// A length of 0 beside the body's own.
    TwoLengths,
    /// A redirect to the same place, ever again.
    RedirectLoop,
    /// A redirect to the same path on the next console.
    RedirectOtherHost,
    /// A new certificate from now on; connections are closed. At once and once.
    SwapCertificate,
    /// 401, asking for HTTP basic authentication.
    BasicAuth,
    /// Nobody listens, until the fault is cleared; connections are closed.
    ClosePort,
    /// The certificate has expired, or names another host; connections are closed.
    ExpiredCertificate,
    MisnamedCertificate,
    /// No fault: bodies are sent in chunks, whole.
    Chunked,
    /// Status 500 over the answer that there is.
    FailedStatus,
    /// Metrics whose samples have some nulls, say that nothing was processed, or are none at all.
    NullMetrics,
    UnprocessedMetrics,
    EmptyMetrics,
};

struct Fault {
    FaultName name = FaultName::RefuseLogon;
    /// What is struck: a feed's type, "Logon", "SessionCheck", "Quick", "Metrics" (the feed of them), "MetricsDocument"
    /// or "All"; empty for what the name says. For `LogonNotXML` the form.
    std::string what;
    /// None for every console.
    std::optional<int> console;

    /// From "name", "name:what", "name:console" or "name:what:console". Throws `std::invalid_argument`.
    static Fault parse(std::string_view text);

    friend bool operator==(const Fault& a, const Fault& b) = default;
};

/// What a request is for.
struct RequestKind {
    enum class Area { Logon, SessionCheck, Feed, Quick, Metrics, MetricsDocument, Other };

    Area area = Area::Other;
    /// The object type of a feed; empty for the rest.
    std::string type;
};

/// Whether the fault strikes requests of that kind.
bool strikes(const Fault& fault, const RequestKind& kind);

} // namespace lodestar::simulator

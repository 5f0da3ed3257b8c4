// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Feed.h"
#include "Platform/Error.h"
#include "Platform/URLLoading/ServerTrust.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A moment on the device's own clock, which a person may set and which is therefore good for showing only.
using WallTime = std::chrono::system_clock::time_point;

/// What a refresh of a console goes through, in order.
enum class StageKind { Name, Connect, TLS, SessionCheck, Logon, Feeds };
inline constexpr std::size_t stageCount = 6;

enum class StageResult {
    Done,
    Failed,
    NotNeeded, ///< a kept connection needs no name, connection or handshake; an accepted key needs no logon
    NotReached
};

struct Stage {
    StageKind kind = StageKind::Name;
    StageResult result = StageResult::NotReached;
    std::chrono::microseconds duration{};
    int status = 0; ///< HTTP status of the session check and the logon; 0 for none
    std::optional<Error> error;
};

/// What the last attempt told of one feed. A look-up through one of the feed's links is an attempt, too, when it fails:
/// what the link leads to belongs to the feed.
struct FeedReading {
    std::string_view type;         ///< an `ObjectType`
    std::optional<WallTime> began; ///< none when the attempt did not get so far
    std::chrono::microseconds duration{};
    int status = 0;        ///< HTTP status; 0 for none
    std::size_t bytes = 0; ///< of the body as it was parsed
    std::size_t entries = 0;
    /// Why the last attempt failed; none when it succeeded or was not made. A screen's own fetch is an attempt, too.
    std::optional<Error> error;
    /// When the feed was last read, by a refresh or by a screen; none when it was never read since the start.
    std::optional<WallTime> readAt;
    /// How many look-ups of screens failed since the feed was read. `error` then is one look-up's, not the feed's own.
    std::size_t failedLookUps = 0;
};

/// A certificate as a console showed it. None of it is secret.
struct ShownCertificate {
    std::string subject;
    std::string issuer;
    bool selfIssued = false;
    WallTime validFrom;
    WallTime validUntil;
    ServerTrust::Fingerprint fingerprint{};
    /// Why this device's authorities do not vouch for the certificate; empty when they do. They are asked after the
    /// first reading that shows the certificate has been published, which is then published again.
    std::string objection;

    friend bool operator==(const ShownCertificate&, const ShownCertificate&) = default;
};

enum class CertificateChange { FirstContact, Unchanged, Changed };

struct CertificateReading {
    ShownCertificate shown;
    CertificateChange compared = CertificateChange::FirstContact; ///< with the last attempt that showed one
    /// Since when the console has shown this one, as far as it was seen; none at the first contact.
    std::optional<WallTime> since;
    /// The one at the session check, when the logon was refused because it met another one.
    std::optional<ShownCertificate> atSessionCheck;
    /// Since when the console had shown that one; none when it was new, too.
    std::optional<WallTime> atSessionCheckSince;
};

/// What the last refresh of one console did, stage by stage. A value; once published nothing changes it.
struct Reading {
    enum class Outcome {
        NotTried,
        Complete, ///< online, and all six feeds were read
        Partial,  ///< online, and some feeds are missing
        Offline
    };

    Outcome outcome = Outcome::NotTried;
    bool isUpdating = false; ///< a refresh is under way; the rest tells about the one before
    WallTime began;
    WallTime ended;
    std::array<Stage, stageCount> stages;
    std::array<FeedReading, feedTable.size()> feeds;  ///< in the order of the feed table
    std::optional<CertificateReading> certificate;    ///< none when no certificate was shown
    std::optional<Error> error;                       ///< why the console is offline
    std::optional<WallTime> offlineSince;             ///< the end of the first refresh of those that failed in a row
    std::optional<WallTime> lastComplete;             ///< the end of the last complete refresh
    std::chrono::microseconds lastCompleteDuration{}; ///< how long that one took; 0 when that is not known
    std::string versionThen;                          ///< the console's version at `lastComplete`
    std::string address;                              ///< where the name led, in numbers; empty without a connection
    std::string tlsVersion;                           ///< "1.3"; empty without a connection
    /// Members of groups, by identity, that a screen looked up and found in error, with the time: until the next
    /// refresh, which looks nothing up. Null without any.
    std::shared_ptr<const std::map<std::string, WallTime>> membersInError;

    std::chrono::microseconds duration() const
    {
        return std::chrono::duration_cast<std::chrono::microseconds>(ended - began);
    }
    /// The types of the feeds whose last attempt failed, in the order of the feed table.
    std::vector<std::string_view> missingFeeds() const;
    /// The oldest of the feeds' times of reading; none when no feed was ever read.
    std::optional<WallTime> oldestFeed() const;
};

/// Why a console or a feed could not be read, in the kinds that a person is told apart. Each has its own words.
enum class ReadingReason {
    TimedOut,           ///< -1001
    NameNotFound,       ///< -1003
    ConnectionRefused,  ///< -1004
    ConnectionLost,     ///< -1005
    TooManyRedirects,   ///< -1007
    NotUnderstood,      ///< -1011
    TooLarge,           ///< -1103
    NoSecureConnection, ///< -1200
    CertificateChanged, ///< -1202
    WrongCredentials,   ///< 401 and 403
    ServerError,        ///< 5xx
    OtherStatus,
    NoSessionKey,
    Unknown ///< any other error of the transport
};
/// The kind that the error belongs to. `statusOf` is the error's HTTP status, 0 for none.
ReadingReason reasonOf(const Error& error);
int statusOf(const Error& error);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"

#include <compare>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace lodestar
{

/// In bytes. A console may send any text; what is kept of it is cut here, at a whole character.
inline constexpr std::size_t longestKeptText = 2000;

/// One object of a console, by the console's own identifier where the feed has one.
struct ObjectKey {
    std::string type; ///< an `ObjectType`
    std::string identifier;
    friend bool operator==(const ObjectKey&, const ObjectKey&) = default;
    friend std::strong_ordering operator<=>(const ObjectKey& a, const ObjectKey& b)
    {
        return std::tie(a.type, a.identifier) <=> std::tie(b.type, b.identifier);
    }
};

/// Since when something is so. Not exact when it was found so at the first reading: "at least since".
struct Since {
    WallTime time;
    bool exact = true;
    friend bool operator==(const Since&, const Since&) = default;
};

/// What is remembered of one object.
struct KnownObject {
    std::string name;
    std::string state; ///< the console's word; of an event its problem state
    bool lit = false;  ///< the attention LED
    Since stateSince;
    Since litSince;
    std::optional<WallTime> ranUntil; ///< the last reading that saw the object "running", when it does not run any more
    bool stopExpected = false;        ///< a person said so; ends when the object runs again
    std::string text;                 ///< an event's description
    friend bool operator==(const KnownObject&, const KnownObject&) = default;
};

/// What is remembered of one console from reading to reading and from run to run. A value. No text is longer than
/// `longestKeptText`.
///
/// `readAt`, `lastEnded`, `lastComplete` and `wasReadAgain` move with each reading, also of a console that stays as it
/// is. They alone cause no writing at each reading; see `HistoryKeeper`.
struct ConsoleMemory {
    std::map<ObjectKey, KnownObject> objects;
    std::map<std::string, Since, std::less<>> missingSince; ///< by feed type; only feeds that are missing
    std::map<std::string, WallTime, std::less<>>
        readAt;                        ///< by feed type: the end of the last reading that had the feed
    std::optional<WallTime> lastEnded; ///< the end of the last reading, answered or not
    std::optional<Since> offlineSince;
    std::optional<WallTime> lastComplete;
    std::string versionThen;
    std::optional<ServerTrust::Fingerprint> certificate;
    std::optional<Since> certificateSince;
    /// How many things needed attention at the last reading that was answered.
    std::size_t neededAttention = 0;
    bool wasRead = false;      ///< at least one reading was answered
    bool wasReadAgain = false; ///< there was a reading after the first, so that changes could be seen
    friend bool operator==(const ConsoleMemory&, const ConsoleMemory&) = default;
};

} // namespace lodestar

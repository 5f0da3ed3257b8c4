// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Draft.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar::simulator
{

/// The purpose of a request.
struct RequestKind {
    enum class Area { Logon, SessionCheck, Feed, Quick, Metrics, MetricsDocument, Other };

    Area area = Area::Other;
    /// The object type of a requested feed; empty for other requests.
    std::string type;
};

/// One of the ways in which a console can misbehave.
struct Fault {
    /// One of the names that `faultHelp` lists.
    std::string name;
    /// The requests that are struck: a feed's type, "Logon", "SessionCheck", "Quick", "Metrics" (their feed),
    /// "MetricsDocument" or "All". Empty for those that the fault's name implies. For "logonNotXML" this is the kind of
    /// answer instead: "html" (also when empty), "empty" or "json".
    std::string what;
    /// None strikes every console.
    std::optional<int> console;
    /// The status with which "refuseFeed", "refuseLogon" and "failedStatus" answer; 0 for the usual one.
    int status = 0;

    /// Reads "name", "name:what", "name:console" or "name:what:console", where the name may be "name=status". Throws
    /// `std::invalid_argument` for anything else.
    static Fault parse(std::string_view text);

    friend bool operator==(const Fault& a, const Fault& b) = default;
};

/// The names of all faults and what each does, a line each.
std::string faultHelp();

/// Whether the fault applies to requests of the kind.
bool strikes(const Fault& fault, const RequestKind& kind);

/// The surroundings of an answer that a fault strikes.
struct Struck {
    const Fault& fault;
    const Request& request;
    const std::string& address;     ///< the console's own
    const std::string& nextAddress; ///< the next console's
};
/// Lets the fault change the answer. Faults that act on connections or sessions change none.
void strike(Draft& draft, const Struck& struck);

} // namespace lodestar::simulator

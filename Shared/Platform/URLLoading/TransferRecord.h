// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"
#include "Platform/URLLoading/ServerCertificate.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace lodestar
{

/// What the transport saw of one request with its redirects. All durations are measured on the monotonic clock. A
/// value.
struct TransferRecord {
    using Duration = std::chrono::microseconds;
    enum class Connection { None, Kept, Made }; ///< in the order of what a record would rather tell

    std::chrono::system_clock::time_point began; ///< when the request was handed to the transport
    Duration waited{};                           ///< from then until the transport turned to it
    Duration total{};                            ///< from then to the end, the wait included

    Connection connection = Connection::None;
    /// The steps of making the first connection; none for a step that was not completed, and for a kept connection. A
    /// connection made ahead took its steps before the request began; the time it then stood still is left out.
    std::optional<Duration> name;
    std::optional<Duration> connect;
    std::optional<Duration> secure;
    std::optional<Duration> answer; ///< from a ready connection to the first line of the last answer
    Duration exchange{};            ///< from a ready connection to the end; zero without one

    std::string address;    ///< the server's, in numbers; empty without a connection
    std::string tlsVersion; ///< "1.3"
    int status = 0;         ///< of the last answer
    std::size_t bytes = 0;  ///< of the last answer's body as it came, possibly packed
    bool redirectedTooOften = false;
    std::optional<ServerCertificate> certificate; ///< the last one that was met, accepted or refused
    std::optional<Error> error;

    /// What the server and the network took.
    Duration worked() const { return total - waited; }
};

} // namespace lodestar

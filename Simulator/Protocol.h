// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// What a client sent.
struct SentRequest {
    std::string method;
    /// The path with its query, as sent.
    std::string path;
    /// The header lines as received, in order, without their line ends.
    std::vector<std::string> headers;
    std::string body;

    /// The values of all headers of that name, in any case, joined by ", "; nothing when there is none.
    std::optional<std::string> header(std::string_view name) const;
};

/// One request as a console received it.
struct RecordedRequest : SentRequest {
    int console = 0;
    /// Counted from 1 over all consoles: two requests with the same number came on the same connection.
    std::uint64_t connection = 0;
    /// Milliseconds since the simulator started.
    std::int64_t milliseconds = 0;
};

/// Numbers of objects in a console's inventory.
struct InventorySummary {
    int systems = 0;
    /// Systems whose state contains "error" or "incomplete".
    int systemErrors = 0;
    int attentionLEDs = 0;
    int partitions = 0;
    int vios = 0;
    int events = 0;
    int groups = 0;
};

/// What a console, or all consoles together, counted.
struct Statistics {
    /// TCP connections accepted.
    std::uint64_t connections = 0;
    /// TLS handshakes completed; every one is a full handshake.
    std::uint64_t handshakes = 0;
    std::uint64_t requests = 0;
};

/// Writes any bytes as one word of printable characters; the empty text becomes the word "%".
std::string encodeWord(std::string_view bytes);
/// Reverses `encodeWord`. Throws `std::invalid_argument` for a word that `encodeWord` cannot make.
std::string decodeWord(std::string_view word);
std::vector<std::string> splitWords(std::string_view line);

/// Writes a request as one line of words, and reads such a line.
std::string encodeRequest(const RecordedRequest& request);
RecordedRequest decodeRequest(const std::vector<std::string>& words);

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// One request as a console received it.
struct RecordedRequest {
    int console = 0;
    /// Counted over all consoles from 1, so that two requests with one number shared a connection.
    std::uint64_t connection = 0;
    /// Since the simulator started.
    std::int64_t milliseconds = 0;
    std::string method;
    /// Path with its query, as sent.
    std::string path;
    /// The header lines as received, in order, without their line ends.
    std::vector<std::string> headers;
    std::string body;

    /// The value of the first header of that name, whatever its case; nothing when it was not sent.
    std::optional<std::string> header(std::string_view name) const;
    /// How many headers bear the name.
    int headerCount(std::string_view name) const;
};

/// What a console holds.
struct InventorySummary {
    int systems = 0;
    /// Systems whose state says "error" or "incomplete".
    int systemErrors = 0;
    int attentionLEDs = 0;
    int partitions = 0;
    int vios = 0;
    int events = 0;
    int groups = 0;
};

/// What a console, or all of them, have seen.
struct Statistics {
    /// TCP connections accepted.
    std::uint64_t connections = 0;
    /// TLS handshakes completed; none of them is ever abbreviated.
    std::uint64_t handshakes = 0;
    std::uint64_t requests = 0;
};

/// Any bytes as one word of printable characters, and back. The empty text is the word "%".
std::string encodeWord(std::string_view bytes);
/// Throws `std::invalid_argument` for what `encodeWord` does not make.
std::string decodeWord(std::string_view word);
std::vector<std::string> splitWords(std::string_view line);

/// A request as one line of words, and back.
std::string encodeRequest(const RecordedRequest& request);
RecordedRequest decodeRequest(const std::vector<std::string>& words);

} // namespace lodestar::simulator

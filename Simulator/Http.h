// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Body.h"
#include "Simulator/Protocol.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar::simulator
{

/// One request as received.
struct Request : SentRequest {
    std::string version;

    /// The path without its query.
    std::string resource() const { return path.substr(0, path.find('?')); }
    bool acceptsGzip() const;
    bool keepsConnection() const;
};

/// Splits a stream of bytes into requests, even if several came at once.
class RequestParser
{
public:
    enum class Outcome { Incomplete, Complete, Bad };

    void append(std::string_view bytes) { m_input.append(bytes); }
    /// Takes the next request from the input. After `Bad`, the rest of the stream cannot be used.
    Outcome next(Request& request);

private:
    bool parseHead(std::string_view head);

    std::string m_input;
    std::optional<Request> m_partial;
    std::size_t m_bodySize = 0;
};

/// What the connection does after an answer, or the part of an answer that is to be sent.
enum class Ending { KeepAlive, Close, Reset, Silence };

/// How the client learns where a body ends. With `OwnChunks`, the body's own bytes are chunks already.
enum class Framing { Length, Chunks, OwnChunks };

struct Response {
    /// The wait before the answer's first byte.
    std::chrono::milliseconds delay{0};
    int status = 200;
    std::vector<std::pair<std::string, std::string>> headers;
    /// Never null.
    BodyPtr body = makeBody(std::string());
    Framing framing = Framing::Length;
    /// How many bytes of the body to send, counted as they are on the wire.
    std::uint64_t stopAfter = std::numeric_limits<std::uint64_t>::max();
    Ending ending = Ending::KeepAlive;
    /// Whether the answer is sent at one byte a second.
    bool trickled = false;
    /// How many bytes of meaningless header lines to send.
    std::uint64_t headerFiller = 0;
};

/// The status line, the headers and the empty line, as a body. Also prepares `response.body` for its framing: wraps it
/// when it is sent in chunks.
BodyPtr takeHead(Response& response);

} // namespace lodestar::simulator

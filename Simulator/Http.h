// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Body.h"

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
struct Request {
    std::string method;
    std::string target;
    std::string version;
    /// Without their line ends.
    std::vector<std::string> headers;
    std::string body;

    /// The values of all headers of that name, joined by ", "; nothing when there is none.
    std::optional<std::string> header(std::string_view name) const;
    /// The target without its query.
    std::string path() const { return target.substr(0, target.find('?')); }
    bool acceptsGzip() const;
    bool keepsConnection() const;
};

/// Finds requests in a stream of bytes, also several that came at once.
class RequestParser
{
public:
    enum class Outcome { Incomplete, Complete, Bad };

    void append(std::string_view bytes) { m_input.append(bytes); }
    /// Takes the next request off the input. After `Bad` the stream is of no more use.
    Outcome next(Request& request);
    /// Whether the client waits to be told to send the body of the request that is not yet complete. Answers so once a
    /// request.
    bool wantsContinue();

private:
    bool parseHead(std::string_view head);

    std::string m_input;
    std::optional<Request> m_partial;
    std::size_t m_bodySize = 0;
    bool m_continueAsked = false;
};

/// What happens on the connection once an answer, or as much of it as is to be sent, has been sent.
enum class Ending { KeepAlive, Close, Reset, Silence };

/// How the client learns where a body ends. `OwnChunks` is a body that brings its chunks itself.
enum class Framing { Length, Chunks, OwnChunks };

struct Response {
    /// Before anything of it is sent.
    std::chrono::milliseconds delay{0};
    int status = 200;
    std::vector<std::pair<std::string, std::string>> headers;
    /// Never null.
    BodyPtr body = makeBody(std::string());
    Framing framing = Framing::Length;
    /// Body bytes, as they are on the wire, after which the sending stops.
    std::uint64_t stopAfter = std::numeric_limits<std::uint64_t>::max();
    Ending ending = Ending::KeepAlive;
    /// One byte a second.
    bool trickled = false;
    /// Bytes of meaningless header lines.
    std::uint64_t headerFiller = 0;
};

/// The status line and the headers with the empty line, as a body of its own; it frames `response.body`, and wraps it
/// when it goes out in chunks.
BodyPtr takeHead(Response& response);

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Http.h"

#include <algorithm>
#include <charconv>
#include <strings.h>

namespace lodestar::simulator
{

namespace
{

constexpr std::size_t headLimit = 256U << 10U;
constexpr std::size_t bodyLimit = 4U << 20U;

bool sameText(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

} // namespace

bool Request::acceptsGzip() const
{
    const std::string accepted = header("Accept-Encoding").value_or("");
    return accepted.find("gzip") != std::string::npos && accepted.find("gzip;q=0") == std::string::npos;
}

bool Request::keepsConnection() const
{
    const std::string connection = header("Connection").value_or("");
    return version == "HTTP/1.1" ? !sameText(connection, "close") : sameText(connection, "keep-alive");
}

RequestParser::Outcome RequestParser::next(Request& request)
{
    if (!m_partial) {
        const std::size_t end = m_input.find("\r\n\r\n");
        if (end == std::string::npos) {
            return m_input.size() > headLimit ? Outcome::Bad : Outcome::Incomplete;
        }
        if (!parseHead(std::string_view(m_input).substr(0, end))) {
            return Outcome::Bad;
        }
        m_input.erase(0, end + 4);
    }
    if (m_input.size() < m_bodySize) {
        return Outcome::Incomplete;
    }
    request = std::move(*m_partial);
    m_partial.reset();
    request.body = m_input.substr(0, m_bodySize);
    m_input.erase(0, m_bodySize);
    return Outcome::Complete;
}

bool RequestParser::parseHead(std::string_view head)
{
    Request request;
    for (std::size_t start = 0; start <= head.size();) {
        const std::size_t end = std::min(head.find("\r\n", start), head.size());
        request.headers.emplace_back(head.substr(start, end - start));
        start = end + 2;
    }
    const std::string line = std::move(request.headers.front());
    request.headers.erase(request.headers.begin());
    const std::size_t methodEnd = line.find(' ');
    const std::size_t targetEnd = line.rfind(' ');
    if (methodEnd == std::string::npos || targetEnd <= methodEnd || !line.substr(targetEnd + 1).starts_with("HTTP/")) {
        return false;
    }
    request.method = line.substr(0, methodEnd);
    request.path = line.substr(methodEnd + 1, targetEnd - methodEnd - 1);
    request.version = line.substr(targetEnd + 1);
    m_bodySize = 0;
    if (const auto length = request.header("Content-Length")) {
        const auto [end, error] = std::from_chars(length->data(), length->data() + length->size(), m_bodySize);
        if (error != std::errc() || end != length->data() + length->size() || m_bodySize > bodyLimit) {
            return false;
        }
    }
    m_partial = std::move(request);
    // Bodies in chunks are refused: no client of a console sends them.
    return !m_partial->header("Transfer-Encoding");
}

BodyPtr takeHead(Response& response)
{
    // The reason after the status may be empty.
    std::string head = "HTTP/1.1 " + std::to_string(response.status) + " \r\n";
    for (const auto& [name, value] : response.headers) {
        head.append(name).append(": ").append(value).append("\r\n");
    }
    head += response.framing == Framing::Length ? "Content-Length: " + std::to_string(response.body->size()) + "\r\n"
                                                : "Transfer-Encoding: chunked\r\n";
    if (response.framing == Framing::Chunks) {
        response.body = makeChunkedBody(std::move(response.body));
    }
    if (response.ending == Ending::Close && response.stopAfter == std::numeric_limits<std::uint64_t>::max()) {
        head += "Connection: close\r\n";
    }
    const std::string filler = response.headerFiller == 0 ? "\r\n" : "X-Filler: " + std::string(1000, 'x') + "\r\n";
    return makeRepeatingBody(std::move(head), filler, std::max<std::uint64_t>(response.headerFiller, 1),
                             response.headerFiller == 0 ? "" : "\r\n");
}

} // namespace lodestar::simulator

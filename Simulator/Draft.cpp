// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Draft.h"

#include <cstdlib>
#include <utility>

namespace lodestar::simulator
{

namespace
{

constexpr std::uint64_t hugeBody = 1ULL << 30U;
constexpr std::uint64_t largeBody = 40ULL << 20U;
constexpr std::uint64_t vastBody = 180ULL << 20U;
constexpr std::uint64_t hugeHeaders = 16ULL << 20U;

// Puts a stray ampersand and an unknown entity in the place of an end tag, and drops the last tenth.
std::string damaged(std::string text)
{
    const std::size_t middle = text.find("</", text.size() / 2);
    if (middle != std::string::npos) {
        const std::size_t end = text.find('>', middle);
        text.replace(middle, end == std::string::npos ? 0 : end - middle + 1, " & &nothing; ");
    }
    text.resize(text.size() - text.size() / 10);
    return text;
}

// After how many bytes to stop so that a chunk stays incomplete.
std::uint64_t insideChunk(std::uint64_t size)
{
    constexpr std::uint64_t chunk = 8192;
    return size < chunk ? size / 2 + 3 : size / 2 / chunk * (chunk + 8) + 106;
}

int hopIn(const std::string& target)
{
    const std::size_t at = target.find("?hop=");
    return at == std::string::npos ? 0 : std::atoi(target.c_str() + at + 5);
}

} // namespace

Response errorResponse(int status, const std::string& message)
{
    Response response;
    response.status = status;
    response.headers = {{"Content-Type", "application/xml"}};
    response.body =
        makeBody("<?xml version=\"1.0\" encoding=\"UTF-8\"?><ErrorResponse><HTTPStatus>" + std::to_string(status) +
                 "</HTTPStatus><Message>" + message + "</Message></ErrorResponse>");
    return response;
}

Response textResponse(const std::string& contentType, std::string text)
{
    Response response;
    response.headers = {{"Content-Type", contentType}, {"Cache-Control", "no-store"}};
    response.body = makeBody(std::move(text));
    return response;
}

void Draft::replaceBody(BodyPtr body)
{
    response.body = std::move(body);
    feedType.clear();
}

void Draft::cut(std::uint64_t after, Ending ending)
{
    response.stopAfter = after;
    response.ending = ending;
    feedType.clear();
}

void Draft::strike(const Fault& fault, const Request& request, const std::string& address,
                   const std::string& nextAddress)
{
    const std::uint64_t size = response.body->size();
    switch (fault.name) {
    case FaultName::RefuseFeed:
        response = errorResponse(500, "The console is busy.");
        feedType.clear();
        break;
    case FaultName::EmptyFeed:
        replaceBody(makeBody(std::string()));
        break;
    case FaultName::StallFeed:
        response.ending = Ending::Silence;
        break;
    case FaultName::Trickle:
        response.trickled = true;
        break;
    case FaultName::CutBody:
        cut(size / 2, Ending::Close);
        break;
    case FaultName::CutChunk:
        response.framing = Framing::Chunks;
        cut(insideChunk(size), Ending::Close);
        break;
    case FaultName::CutGzip: {
        const std::string packed = gzipped(readAll(*response.body));
        replaceBody(makeBody(packed.substr(0, packed.size() / 2)));
        response.headers.emplace_back("Content-Encoding", "gzip");
        break;
    }
    case FaultName::Reset:
        cut(size / 2, Ending::Reset);
        break;
    case FaultName::MalformedFeed:
        replaceBody(makeBody(damaged(readAll(*response.body))));
        break;
    case FaultName::HugeBody:
    case FaultName::LargeFeed:
    case FaultName::VastFeed:
        replaceBody(makeRepeatingBody("<feed>", "<entry><content>" + std::string(65536, ' ') + "</content></entry>",
                                      fault.name == FaultName::HugeBody   ? hugeBody
                                      : fault.name == FaultName::VastFeed ? vastBody
                                                                          : largeBody,
                                      "</feed>"));
        break;
    case FaultName::GzipBomb:
    case FaultName::LargeGzip:
        replaceBody(makeGzipBomb(fault.name == FaultName::GzipBomb ? hugeBody : largeBody));
        response.headers.emplace_back("Content-Encoding", "gzip");
        break;
    case FaultName::EndlessChunk:
        replaceBody(makeRepeatingBody("1;", std::string(65536, 'x'), hugeBody, "\r\nx\r\n0\r\n\r\n"));
        response.framing = Framing::OwnChunks;
        break;
    case FaultName::TwoLengths:
        response.headers.emplace_back("Content-Length", "0");
        break;
    case FaultName::HugeHeaders:
        response.headerFiller = hugeHeaders;
        break;
    case FaultName::RedirectLoop:
    case FaultName::RedirectOtherHost: {
        const bool loop = fault.name == FaultName::RedirectLoop;
        const std::string hop = loop ? "?hop=" + std::to_string(hopIn(request.target) + 1) : std::string();
        response = textResponse("text/html", "<p>It is elsewhere.</p>");
        response.status = 307;
        response.headers.emplace_back("Location", "https://" + (loop ? address : nextAddress) + ":" +
                                                      std::to_string(consolePort) + request.path() + hop);
        feedType.clear();
        break;
    }
    case FaultName::Chunked:
        response.framing = Framing::Chunks;
        break;
    case FaultName::FailedStatus:
        response.status = 500;
        break;
    default:
        break;
    }
}

} // namespace lodestar::simulator

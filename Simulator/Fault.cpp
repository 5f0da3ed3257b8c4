// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Fault.h"

#include "Simulator/FeedWriter.h"
#include "Simulator/Settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace lodestar::simulator
{

namespace
{

using Area = RequestKind::Area;
using Strike = void (*)(Draft&, const Struck&);

struct Row {
    std::string_view name;
    /// The requests that are struck when the fault names none.
    Area area;
    Strike strike;
    std::string_view help;
};

constexpr std::uint64_t gigabyte = 1ULL << 30U;
constexpr std::uint64_t megabyte = 1ULL << 20U;

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

BodyPtr entriesOf(std::uint64_t size)
{
    return makeRepeatingBody("<feed>", "<entry><content>" + std::string(65536, ' ') + "</content></entry>", size,
                             "</feed>");
}

int statusOf(const Struck& struck, int usual)
{
    return struck.fault.status != 0 ? struck.fault.status : usual;
}

void redirect(Draft& draft, const std::string& address, const std::string& target)
{
    draft.replace(textResponse("text/html", "<p>It is elsewhere.</p>"));
    draft.response.status = 307;
    draft.response.headers.emplace_back("Location", "https://" + address + ":" + std::to_string(consolePort) + target);
}

void redirectToItself(Draft& draft, const Struck& struck)
{
    const std::size_t at = struck.request.path.find("?hop=");
    const int hop = at == std::string::npos ? 0 : std::atoi(struck.request.path.c_str() + at + 5);
    redirect(draft, struck.address, struck.request.resource() + "?hop=" + std::to_string(hop + 1));
}

void answerNoXML(Draft& draft, const Struck& struck)
{
    if (struck.fault.what == "empty") {
        draft.replaceBody(makeBody(std::string()));
    } else if (struck.fault.what == "json") {
        draft.replace(textResponse("application/json", R"({"status": "maintenance", "key": null})"));
    } else {
        draft.replace(textResponse("text/html", "<!DOCTYPE html><html><head><title>Sign in<br></head>"
                                                "<body><p>Please sign in</body></html>"));
    }
}

// A row without a function acts on connections, sessions or the metrics document: its name is asked for there.
const std::vector<Row> rows = {
    {"refuseLogon", Area::Logon,
     [](Draft& draft, const Struck& struck) {
         draft.replace(errorResponse(statusOf(struck, 401), "The user or the password is wrong."));
     },
     "the logon answers 401; refuseLogon=403 with another status"},
    {"logonWithoutKey", Area::Logon, [](Draft& draft, const Struck&) { draft.replace(logonResponse({})); },
     "the logon answers 200 without a session key"},
    {"logonNotXML", Area::Logon, answerNoXML,
     "the logon answers 200 with WHAT: html (also when left out), empty, json"},
    {"longKey", Area::Logon,
     [](Draft& draft, const Struck&) { draft.replace(logonResponse(std::string(megabyte, 'k'))); },
     "the logon answers 200 with a session key of 1 MB"},
    {"expireSession", Area::Feed, nullptr, "every session key becomes invalid; at once and only once"},
    {"refuseFeed", Area::Feed,
     [](Draft& draft, const Struck& struck) {
         draft.replace(errorResponse(statusOf(struck, 500), "The console is busy."));
     },
     "status 500; refuseFeed=503 for another"},
    {"emptyFeed", Area::Feed, [](Draft& draft, const Struck&) { draft.replaceBody(makeBody(std::string())); },
     "status 200 without a body"},
    {"stallFeed", Area::Feed, [](Draft& draft, const Struck&) { draft.response.ending = Ending::Silence; },
     "no answer"},
    {"silentAfterAccept", Area::Feed, nullptr, "connections are accepted, and nothing is ever sent on them"},
    {"trickle", Area::Feed, [](Draft& draft, const Struck&) { draft.response.trickled = true; },
     "the answer comes at one byte a second"},
    {"cutBody", Area::Feed,
     [](Draft& draft, const Struck&) { draft.cut(draft.response.body->size() / 2, Ending::Close); },
     "the connection ends in the middle of the body"},
    {"cutChunk", Area::Feed,
     [](Draft& draft, const Struck&) {
         draft.response.framing = Framing::Chunks;
         draft.cut(insideChunk(draft.response.body->size()), Ending::Close);
     },
     "the connection ends in the middle of a chunk"},
    {"cutGzip", Area::Feed,
     [](Draft& draft, const Struck&) {
         const std::string packed = gzipped(readAll(*draft.response.body));
         draft.replacePacked(makeBody(packed.substr(0, packed.size() / 2)));
     },
     "the answer is complete, but its compressed body is cut in the middle"},
    {"reset", Area::Feed,
     [](Draft& draft, const Struck&) { draft.cut(draft.response.body->size() / 2, Ending::Reset); },
     "the connection is reset in the middle of the body"},
    {"malformedFeed", Area::Feed,
     [](Draft& draft, const Struck&) { draft.replaceBody(makeBody(damaged(readAll(*draft.response.body)))); },
     "damaged XML"},
    {"hugeBody", Area::Feed, [](Draft& draft, const Struck&) { draft.replaceBody(entriesOf(gigabyte)); }, "1 GB"},
    {"gzipBomb", Area::Feed, [](Draft& draft, const Struck&) { draft.replacePacked(makeGzipBomb(gigabyte)); },
     "a small compressed body that unpacks to 1 GB"},
    {"largeFeed", Area::Feed, [](Draft& draft, const Struck&) { draft.replaceBody(entriesOf(40 * megabyte)); },
     "40 MB, which is no fault"},
    {"largeGzip", Area::Feed, [](Draft& draft, const Struck&) { draft.replacePacked(makeGzipBomb(40 * megabyte)); },
     "40 MB, compressed, which is no fault"},
    {"vastFeed", Area::Feed, [](Draft& draft, const Struck&) { draft.replaceBody(entriesOf(180 * megabyte)); },
     "180 MB, which is no fault"},
    {"hugeHeaders", Area::Feed, [](Draft& draft, const Struck&) { draft.response.headerFiller = 16 * megabyte; },
     "16 MB of header lines before the body"},
    {"endlessChunk", Area::Feed,
     [](Draft& draft, const Struck&) {
         draft.replaceBody(makeRepeatingBody("1;", std::string(65536, 'x'), gigabyte, "\r\nx\r\n0\r\n\r\n"));
         draft.response.framing = Framing::OwnChunks;
     },
     "the extension of the first chunk goes on for 1 GB before the chunk's first byte"},
    {"twoLengths", Area::Feed,
     [](Draft& draft, const Struck&) { draft.response.headers.emplace_back("Content-Length", "0"); },
     "a second length, 0, beside the body's own"},
    {"redirectLoop", Area::Feed, redirectToItself, "a redirect to its own address"},
    {"redirectOtherHost", Area::Feed,
     [](Draft& draft, const Struck& struck) { redirect(draft, struck.nextAddress, struck.request.resource()); },
     "a redirect to the same path on the next console"},
    {"swapCertificate", Area::Feed, nullptr,
     "the console gets a new certificate and closes its connections; at once and only once"},
    {"basicAuth", Area::Other, nullptr, "status 401 with a demand for HTTP basic authentication, to everything"},
    {"closePort", Area::Feed, nullptr, "the console closes its connections and does not listen until this is cleared"},
    {"expiredCertificate", Area::Feed, nullptr, "the certificate has expired; connections are closed"},
    {"misnamedCertificate", Area::Feed, nullptr, "the certificate names another host; connections are closed"},
    {"chunked", Area::Feed, [](Draft& draft, const Struck&) { draft.response.framing = Framing::Chunks; },
     "the body is sent whole, in chunks, which is no fault"},
    {"failedStatus", Area::Feed,
     [](Draft& draft, const Struck& struck) { draft.response.status = statusOf(struck, 500); },
     "the usual answer with status 500; failedStatus=418 with another"},
    {"nullMetrics", Area::MetricsDocument, nullptr, "the metrics have some nulls"},
    {"unprocessedMetrics", Area::MetricsDocument, nullptr, "the metrics say that nothing was processed"},
    {"emptyMetrics", Area::MetricsDocument, nullptr, "the metrics have no samples"},
};

/// Null for a name that no fault has.
const Row* rowOf(std::string_view name)
{
    const auto row = std::ranges::find(rows, name, &Row::name);
    return row != rows.end() ? &*row : nullptr;
}

/// What a fault may name beside feeds' types, and the requests that it then strikes.
struct Target {
    std::string_view name;
    Area area;
};
constexpr std::array<Target, 5> targets = {{{"Logon", Area::Logon},
                                            {"SessionCheck", Area::SessionCheck},
                                            {"Quick", Area::Quick},
                                            {"Metrics", Area::Metrics},
                                            {"MetricsDocument", Area::MetricsDocument}}};

bool isKnownTarget(const Fault& fault)
{
    if (fault.what.empty()) {
        return true;
    }
    if (fault.name == "logonNotXML") {
        return fault.what == "html" || fault.what == "empty" || fault.what == "json";
    }
    return fault.what == "All" || std::ranges::find(targets, fault.what, &Target::name) != targets.end() ||
           std::ranges::find(feedTypes, fault.what) != feedTypes.end();
}

/// Takes a status off the fault's name.
void takeStatus(Fault& fault)
{
    const std::size_t equals = fault.name.find('=');
    if (equals == std::string::npos) {
        return;
    }
    const std::string text = fault.name.substr(equals + 1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), fault.status);
    const std::string name = fault.name.substr(0, equals);
    const bool takesOne = name == "refuseFeed" || name == "refuseLogon" || name == "failedStatus";
    if (!takesOne || error != std::errc() || *end != 0 || fault.status < 200 || fault.status > 599) {
        throw std::invalid_argument("not a fault with a status: " + fault.name);
    }
    fault.name = name;
}

} // namespace

Fault Fault::parse(std::string_view text)
{
    Fault fault;
    fault.name = text.substr(0, text.find(':'));
    std::string_view rest = text.substr(fault.name.size());
    takeStatus(fault);
    while (!rest.empty()) {
        rest.remove_prefix(1);
        const std::string_view part = rest.substr(0, rest.find(':'));
        rest.remove_prefix(part.size());
        int console = 0;
        const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), console);
        const bool isNumber = error == std::errc() && end == part.data() + part.size();
        if (fault.console || (!isNumber && !fault.what.empty())) {
            throw std::invalid_argument("not a fault: " + std::string(text));
        }
        if (isNumber) {
            fault.console = console;
        } else {
            fault.what = part;
        }
    }
    if (rowOf(fault.name) == nullptr || !isKnownTarget(fault)) {
        throw std::invalid_argument("unknown fault " + std::string(text));
    }
    return fault;
}

std::string faultHelp()
{
    std::string help;
    for (const Row& row : rows) {
        help.append("  ").append(row.name).append(22 - row.name.size(), ' ').append(row.help).append("\n");
    }
    return help;
}

bool strikes(const Fault& fault, const RequestKind& kind)
{
    const Area usual = rowOf(fault.name)->area;
    if (usual == Area::Logon || usual == Area::MetricsDocument) {
        return kind.area == usual;
    }
    if (fault.what.empty()) {
        return usual == Area::Other || kind.area == usual;
    }
    if (fault.what == "All" || (kind.area == Area::Feed && fault.what == kind.type)) {
        return true;
    }
    const auto* const named = std::ranges::find(targets, fault.what, &Target::name);
    return named != targets.end() && named->area == kind.area;
}

void strike(Draft& draft, const Struck& struck)
{
    if (const Strike change = rowOf(struck.fault.name)->strike) {
        change(draft, struck);
    }
}

} // namespace lodestar::simulator

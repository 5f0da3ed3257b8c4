// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>
#include <utility>

namespace lodestar::simulator
{

namespace
{

constexpr std::array<std::pair<std::string_view, FaultName>, 35> names = {{
    {"refuseLogon", FaultName::RefuseLogon},
    {"logonWithoutKey", FaultName::LogonWithoutKey},
    {"logonNotXML", FaultName::LogonNotXML},
    {"longKey", FaultName::LongKey},
    {"expireSession", FaultName::ExpireSession},
    {"refuseFeed", FaultName::RefuseFeed},
    {"emptyFeed", FaultName::EmptyFeed},
    {"stallFeed", FaultName::StallFeed},
    {"silentAfterAccept", FaultName::SilentAfterAccept},
    {"trickle", FaultName::Trickle},
    {"cutBody", FaultName::CutBody},
    {"cutChunk", FaultName::CutChunk},
    {"cutGzip", FaultName::CutGzip},
    {"reset", FaultName::Reset},
    {"malformedFeed", FaultName::MalformedFeed},
    {"hugeBody", FaultName::HugeBody},
    {"gzipBomb", FaultName::GzipBomb},
    {"largeFeed", FaultName::LargeFeed},
    {"largeGzip", FaultName::LargeGzip},
    {"vastFeed", FaultName::VastFeed},
    {"hugeHeaders", FaultName::HugeHeaders},
    {"endlessChunk", FaultName::EndlessChunk},
    {"twoLengths", FaultName::TwoLengths},
    {"redirectLoop", FaultName::RedirectLoop},
    {"redirectOtherHost", FaultName::RedirectOtherHost},
    {"swapCertificate", FaultName::SwapCertificate},
    {"basicAuth", FaultName::BasicAuth},
    {"closePort", FaultName::ClosePort},
    {"expiredCertificate", FaultName::ExpiredCertificate},
    {"misnamedCertificate", FaultName::MisnamedCertificate},
    {"chunked", FaultName::Chunked},
    {"failedStatus", FaultName::FailedStatus},
    {"nullMetrics", FaultName::NullMetrics},
    {"unprocessedMetrics", FaultName::UnprocessedMetrics},
    {"emptyMetrics", FaultName::EmptyMetrics},
}};

constexpr std::array<std::string_view, 13> targets = {
    "",
    "All",
    "Logon",
    "SessionCheck",
    "Quick",
    "Metrics",
    "MetricsDocument",
    "ManagementConsole",
    "Group",
    "ManagedSystem",
    "VirtualIOServer",
    "LogicalPartition",
    "ServiceableEvent",
};
constexpr std::array<std::string_view, 4> logonForms = {"", "html", "empty", "json"};

void checkTarget(const Fault& fault)
{
    const bool known = fault.name == FaultName::LogonNotXML
                           ? std::ranges::find(logonForms, fault.what) != logonForms.end()
                           : std::ranges::find(targets, fault.what) != targets.end();
    if (!known) {
        throw std::invalid_argument("a fault cannot strike \"" + fault.what + "\"");
    }
}

std::string_view areaName(RequestKind::Area area)
{
    switch (area) {
    case RequestKind::Area::Logon:
        return "Logon";
    case RequestKind::Area::SessionCheck:
        return "SessionCheck";
    case RequestKind::Area::Quick:
        return "Quick";
    case RequestKind::Area::Metrics:
        return "Metrics";
    case RequestKind::Area::MetricsDocument:
        return "MetricsDocument";
    case RequestKind::Area::Feed:
    case RequestKind::Area::Other:
        break;
    }
    return {};
}

} // namespace

Fault Fault::parse(std::string_view text)
{
    Fault fault;
    const std::size_t nameEnd = std::min(text.find(':'), text.size());
    const auto name = std::ranges::find(names, text.substr(0, nameEnd), &decltype(names)::value_type::first);
    if (name == names.end()) {
        throw std::invalid_argument("unknown fault " + std::string(text));
    }
    fault.name = name->second;
    std::string_view rest = text.substr(nameEnd);
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
    checkTarget(fault);
    return fault;
}

bool strikes(const Fault& fault, const RequestKind& kind)
{
    using enum RequestKind::Area;
    switch (fault.name) {
    case FaultName::RefuseLogon:
    case FaultName::LogonWithoutKey:
    case FaultName::LogonNotXML:
    case FaultName::LongKey:
        return kind.area == Logon;
    case FaultName::NullMetrics:
    case FaultName::UnprocessedMetrics:
    case FaultName::EmptyMetrics:
        return kind.area == MetricsDocument;
    default:
        break;
    }
    if (fault.what == "All" || (fault.what.empty() && fault.name == FaultName::BasicAuth)) {
        return true;
    }
    if (kind.area == Feed) {
        return fault.what.empty() || fault.what == kind.type;
    }
    return !fault.what.empty() && fault.what == areaName(kind.area);
}

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#include "Tools/Screenshots/NightReading.h"

#include "Controllers/REST/Exchange.h"
#include "Inventory/ConsoleInformation.h"
#include "Platform/URLLoading/URLError.h"
#include "Simulator/Story.h"

#include <fmt/core.h>

#include <array>

namespace lodestar::scenes
{
namespace
{

using namespace std::chrono_literals;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr std::chrono::hours year{24 * 365};

Error errorOfStatus(int status)
{
    return statusError(status);
}

ServerTrust::Fingerprint fingerprintOf(const std::string& name)
{
    ServerTrust::Fingerprint fingerprint{};
    std::uint64_t bits = 0x9E3779B97F4A7C15;
    for (const char each : name) {
        bits = (bits ^ static_cast<unsigned char>(each)) * 0x100000001B3;
    }
    for (auto& byte : fingerprint) {
        bits = bits * 6364136223846793005 + 1442695040888963407;
        byte = static_cast<std::remove_reference_t<decltype(byte)>>(bits >> 56U);
    }
    return fingerprint;
}

ShownCertificate certificateOf(const std::string& address, WallTime from)
{
    ShownCertificate shown;
    shown.subject = address;
    shown.issuer = address;
    shown.selfIssued = true;
    shown.validFrom = from;
    shown.validUntil = from + 2 * year;
    shown.fingerprint = fingerprintOf(address + std::to_string(std::chrono::system_clock::to_time_t(from)));
    shown.objection = "self-signed certificate";
    return shown;
}

constexpr WallTime renewal = std::chrono::sys_days(std::chrono::year(2026) / std::chrono::March / 3) + 9h;
constexpr WallTime issue = std::chrono::sys_days(std::chrono::year(2025) / std::chrono::September / 1);

void setStage(Reading& reading, StageKind kind, StageResult result, microseconds duration)
{
    Stage& stage = reading.stages.at(static_cast<std::size_t>(kind));
    stage.result = result;
    stage.duration = duration;
}

void setStages(Reading& reading, const std::string& address)
{
    for (std::size_t i = 0; i < stageCount; ++i) {
        reading.stages.at(i).kind = static_cast<StageKind>(i);
    }
    const bool isGiven = address.find_first_not_of("0123456789.") == std::string::npos;
    setStage(reading, StageKind::Name, isGiven ? StageResult::NotNeeded : StageResult::Done, isGiven ? 0ms : 4ms);
    reading.address = isGiven ? address : "192.0.2.12";
    setStage(reading, StageKind::Connect, StageResult::Done, 12ms);
    setStage(reading, StageKind::TLS, StageResult::Done, 31ms);
    reading.tlsVersion = "1.3";
    setStage(reading, StageKind::SessionCheck, StageResult::Done, 48ms);
    setStage(reading, StageKind::Logon, StageResult::NotNeeded, 0us);
    setStage(reading, StageKind::Feeds, StageResult::Done, 845ms);
    reading.stages.at(static_cast<std::size_t>(StageKind::SessionCheck)).status = 200;
}

void failAt(Reading& reading, StageKind kind, microseconds duration, const Error& error)
{
    setStage(reading, kind, StageResult::Failed, duration);
    reading.stages.at(static_cast<std::size_t>(kind)).error = error;
    for (std::size_t i = static_cast<std::size_t>(kind) + 1; i < stageCount; ++i) {
        setStage(reading, static_cast<StageKind>(i), StageResult::NotReached, 0us);
        reading.stages.at(i).status = 0;
    }
    reading.error = error;
    reading.outcome = Reading::Outcome::Offline;
}

void makeOffline(Reading& reading, const std::string& address, Condition::Offline why)
{
    if (why == Condition::Offline::Silent) {
        failAt(reading, StageKind::Connect, 10s, urlError(URLErrorCode::TimedOut));
        reading.certificate.reset();
        return;
    }
    setStage(reading, StageKind::SessionCheck, StageResult::Done, 57ms);
    reading.stages.at(static_cast<std::size_t>(StageKind::SessionCheck)).status = 401;
    failAt(reading, StageKind::Logon, 12ms, urlError(URLErrorCode::ServerCertificateUntrusted));
    CertificateReading& certificate = reading.certificate.value();
    certificate.atSessionCheck = std::move(certificate.shown);
    certificate.atSessionCheckSince = certificate.since;
    certificate.shown =
        certificateOf(address, std::chrono::sys_days(std::chrono::year(2026) / std::chrono::March / 12));
    certificate.compared = CertificateChange::Changed;
    certificate.since = reading.ended;
}

void setFeeds(Reading& reading, const Condition& condition, const FeedDictionary& feeds)
{
    constexpr std::array<milliseconds, feedTable.size()> durations = {96ms, 388ms, 402ms, 845ms, 211ms, 140ms};
    for (std::size_t i = 0; i < feedTable.size(); ++i) {
        FeedReading& feed = reading.feeds.at(i);
        feed.type = feedTable.at(i).type;
        if (reading.outcome == Reading::Outcome::Offline) {
            continue;
        }
        feed.began = reading.began + 95ms;
        feed.duration = durations.at(i);
        if (const auto missing = condition.missing.find(feed.type); missing != condition.missing.end()) {
            feed.status = missing->second;
            feed.error = errorOfStatus(missing->second);
            feed.duration = 4100ms;
            reading.outcome = Reading::Outcome::Partial;
            continue;
        }
        feed.status = 200;
        feed.entries = feeds.feed(feed.type).entryCount();
        feed.bytes = 1400 + feed.entries * 1700;
        feed.readAt = reading.ended;
    }
}

} // namespace

void Condition::change(const simulator::Deed& deed)
{
    if (deed.kind == "feed") {
        missing.erase(deed.object);
        if (deed.is("missing")) {
            missing[deed.object] = std::stoi(deed.value("status").value_or("500"));
        }
    } else if (deed.kind == "certificate") {
        offline = deed.is("swaps") ? Offline::CertificateChanged : Offline::No;
    } else if (deed.is("silent") || deed.is("back")) {
        offline = deed.is("silent") ? Offline::Silent : Offline::No;
    }
}

Reading readingOf(const Condition& condition, const Corvel& corvel, const FeedDictionary& feeds, WallTime ended)
{
    const std::string address = corvel.address().value();
    Reading reading;
    reading.ended = ended;
    reading.began = ended - (condition.offline == Condition::Offline::Silent ? 10000ms : 940ms);
    reading.outcome = Reading::Outcome::Complete;
    setStages(reading, address);
    CertificateReading& certificate = reading.certificate.emplace();
    certificate.shown = certificateOf(address, issue);
    certificate.compared = CertificateChange::Unchanged;
    certificate.since = renewal;
    if (condition.offline != Condition::Offline::No) {
        makeOffline(reading, address, condition.offline);
    }
    setFeeds(reading, condition, feeds);
    if (reading.outcome == Reading::Outcome::Complete) {
        reading.lastComplete = ended;
        reading.lastCompleteDuration = reading.duration();
        reading.versionThen = ConsoleInformation::of(feeds.feed(ObjectType::ManagementConsole)).version();
    }
    return reading;
}

} // namespace lodestar::scenes

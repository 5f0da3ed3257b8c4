// SPDX-License-Identifier: Apache-2.0
#include "Fleet/AttemptReading.h"

#include "Fleet/AttemptStages.h"
#include "Fleet/CertificateDetails.h"
#include "Inventory/ConsoleInformation.h"
#include "Platform/URLLoading/URLError.h"

#include <algorithm>

namespace lodestar
{

namespace
{

const Exchange* exchangeOf(const Attempt& attempt, std::string_view type)
{
    const auto found = std::ranges::find_if(attempt.exchanges, [type](const Exchange& exchange) {
        return exchange.kind == Exchange::Kind::Feed && exchange.type == type;
    });
    return found != attempt.exchanges.end() ? &*found : nullptr;
}

FeedReading feedOf(const Attempt& attempt, std::string_view type, const Exchange* logon)
{
    const Feed feed = attempt.feeds->feed(type);
    const Exchange* const exchange = exchangeOf(attempt, type);
    FeedReading reading =
        exchange != nullptr ? feedReadingOf(type, *exchange) : feedReadingOf(type, feed, attempt.ended);
    if (feed.isNA() && !reading.error) {
        reading.error = urlError(URLErrorCode::Unknown);
        reading.readAt.reset();
    }
    // Without a key every feed is refused, and the feed's status would tell of a wrong password.
    if (reading.error && logon != nullptr && logon->error && logon->error->domain == sessionKeyErrorDomain) {
        reading.error = logon->error;
    }
    return reading;
}

bool wasUntrusted(const Exchange& exchange)
{
    return exchange.error && exchange.error->domain == urlErrorDomain &&
           exchange.error->code == static_cast<int>(URLErrorCode::ServerCertificateUntrusted);
}

/// The certificate that the console showed last, and the one before when a request was refused for the difference.
std::optional<CertificateReading> certificateOf(const std::vector<Exchange>& exchanges)
{
    const ServerCertificate* accepted = nullptr;
    const ServerCertificate* refused = nullptr;
    for (const Exchange& exchange : exchanges) {
        if (exchange.transfer.certificate) {
            (wasUntrusted(exchange) ? refused : accepted) = &*exchange.transfer.certificate;
        }
    }
    const ServerCertificate* const shown = refused != nullptr ? refused : accepted;
    if (shown == nullptr) {
        return std::nullopt;
    }
    CertificateReading reading;
    reading.shown = CertificateDetails::of(*shown);
    if (refused != nullptr && accepted != nullptr) {
        reading.compared = CertificateChange::Changed;
        reading.atSessionCheck = CertificateDetails::of(*accepted);
    }
    return reading;
}

void judge(const Attempt& attempt, const Exchange* logon, Reading& reading)
{
    if (attempt.feeds == nullptr) {
        reading.outcome = Reading::Outcome::Offline;
        // The log's own error tells one status from another; the promise's does not.
        reading.error = logon != nullptr && logon->error ? logon->error : attempt.rejection;
        return;
    }
    if (!reading.missingFeeds().empty()) {
        reading.outcome = Reading::Outcome::Partial;
        return;
    }
    reading.outcome = Reading::Outcome::Complete;
    reading.lastComplete = reading.ended;
    reading.lastCompleteDuration = reading.duration();
    reading.versionThen = ConsoleInformation::of(attempt.feeds->feed(ObjectType::ManagementConsole)).version();
}

} // namespace

Reading readingOf(const Attempt& attempt)
{
    Reading reading;
    reading.began = attempt.began;
    reading.ended = attempt.ended;
    const AttemptStages stages(attempt);
    reading.stages = stages.beforeFeeds();
    if (const Exchange* const opening = stages.opening(); opening != nullptr) {
        reading.address = opening->transfer.address;
        reading.tlsVersion = opening->transfer.tlsVersion;
    }
    for (std::size_t i = 0; i < feedTable.size(); ++i) {
        reading.feeds[i].type = feedTable[i].type;
        if (attempt.feeds != nullptr) {
            reading.feeds[i] = feedOf(attempt, feedTable[i].type, stages.logon());
        }
    }
    if (attempt.feeds != nullptr) {
        reading.stages.back() = AttemptStages::ofFeeds(reading.feeds);
    }
    reading.certificate = certificateOf(attempt.exchanges);
    judge(attempt, stages.logon(), reading);
    return reading;
}

FeedReading feedReadingOf(std::string_view type, const Exchange& exchange)
{
    FeedReading reading;
    reading.type = type;
    reading.began = exchange.transfer.began + exchange.transfer.waited;
    reading.duration = exchange.transfer.worked();
    reading.status = exchange.status;
    reading.bytes = exchange.bytes;
    reading.entries = exchange.entries;
    reading.error = exchange.error;
    if (!exchange.error) {
        reading.readAt = exchange.transfer.began + exchange.transfer.total;
    }
    return reading;
}

FeedReading feedReadingOf(std::string_view type, const Feed& feed, WallTime read)
{
    FeedReading reading;
    reading.type = type;
    reading.began = read;
    reading.entries = feed.entryCount();
    reading.readAt = read;
    return reading;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/Exchange.h"
#include "Fleet/Readings.h"
#include "Platform/URLLoading/URLError.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Common/AgeClock.h"

namespace lodestar::testing
{

using namespace std::chrono_literals;

/// Thursday, 12 March 2026, 09:43 UTC.
inline const WallTime morning{std::chrono::seconds(1773308580)};

/// Screens that say how old things are, at that moment, over readings made by hand.
class ReadingTest : public ListTest
{
protected:
    ReadingTest() { AgeClock::setNow(morning); }
    ~ReadingTest() override
    {
        navigation.reset();
        drain();
        Readings::shared().forgetAll();
        AgeClock::setNow({});
    }

    /// Everything was read, that long ago.
    static Reading complete(std::chrono::seconds ago = 2min)
    {
        Reading reading;
        reading.outcome = Reading::Outcome::Complete;
        reading.ended = morning - ago;
        reading.began = reading.ended - 940ms;
        const std::chrono::milliseconds durations[] = {4ms, 12ms, 31ms, 48ms, 0ms, 845ms};
        for (std::size_t i = 0; i < stageCount; ++i) {
            Stage& made = reading.stages[i];
            made.kind = static_cast<StageKind>(i);
            made.result = StageResult::Done;
            made.duration = durations[i];
        }
        reading.address = "192.0.2.12";
        reading.tlsVersion = "1.3";
        stage(reading, StageKind::SessionCheck).status = 200;
        stage(reading, StageKind::Logon).result = StageResult::NotNeeded;
        for (std::size_t i = 0; i < feedTable.size(); ++i) {
            FeedReading& made = reading.feeds[i];
            made.type = feedTable[i].type;
            made.began = reading.began;
            made.duration = 96ms;
            made.status = 200;
            made.bytes = 214'400;
            made.entries = i;
            made.readAt = reading.ended;
        }
        CertificateReading& certificate = reading.certificate.emplace();
        certificate.shown.subject = "corvel-b.harbour.example";
        certificate.shown.selfIssued = true;
        certificate.shown.validFrom = morning - 24h * 192;
        certificate.shown.validUntil = morning + 24h * 500;
        certificate.shown.fingerprint = {0x5B, 0x0E, 0x41, 0xC7};
        certificate.shown.objection = "self-signed certificate";
        certificate.compared = CertificateChange::Unchanged;
        certificate.since = morning - 24h * 9;
        return reading;
    }
    static Stage& stage(Reading& reading, StageKind kind) { return reading.stages[static_cast<std::size_t>(kind)]; }
    static FeedReading& feed(Reading& reading, std::string_view type)
    {
        return *std::ranges::find(reading.feeds, type, &FeedReading::type);
    }
    /// Online, but without these feeds, which were read half an hour before, if at all.
    static Reading without(const std::vector<std::string_view>& types, const Error& error = statusError(500))
    {
        Reading reading = complete();
        reading.outcome = Reading::Outcome::Partial;
        for (const std::string_view type : types) {
            feed(reading, type).error = error;
            feed(reading, type).readAt = morning - 30min;
        }
        return reading;
    }
    /// Reached to this stage, where the error ended it; offline for that long.
    static Reading failedAt(StageKind kind, const Error& error, std::chrono::seconds since = 2min)
    {
        Reading reading = complete();
        reading.outcome = Reading::Outcome::Offline;
        reading.error = error;
        reading.offlineSince = morning - since;
        stage(reading, kind).result = StageResult::Failed;
        stage(reading, kind).error = error;
        for (std::size_t i = static_cast<std::size_t>(kind) + 1; i < stageCount; ++i) {
            reading.stages[i] = Stage();
            reading.stages[i].kind = static_cast<StageKind>(i);
        }
        if (kind < StageKind::TLS) {
            reading.certificate.reset();
        }
        return reading;
    }
    /// As a refresh that has ended reports it.
    static void report(const CorvelRef& corvel, Reading reading)
    {
        Readings::shared().end(corvel, std::move(reading));
        drain();
    }
};

} // namespace lodestar::testing

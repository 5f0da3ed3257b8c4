// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Platform/NotificationCenter.h"
#include "Platform/URLLoading/URLError.h"
#include "Tests/Fleet/ReadingFixture.h"
#include "Tests/Support/ScratchFolder.h"

#include <fmt/core.h>

#include <algorithm>

namespace lodestar::test
{

namespace
{

using namespace std::chrono_literals;
using Outcome = Reading::Outcome;

std::string hexadecimal(const ServerTrust::Fingerprint& fingerprint)
{
    std::string text;
    for (const std::uint8_t byte : fingerprint) {
        text += fmt::format("{:02x}", byte);
    }
    return text;
}

/// The stages' results as one word: D done, F failed, n not needed, - not reached.
std::string resultsOf(const Reading& reading)
{
    std::string results;
    for (const Stage& stage : reading.stages) {
        results += "DFn-"[static_cast<std::size_t>(stage.result)];
    }
    return results;
}

const Stage& stageOf(const Reading& reading, StageKind kind)
{
    return reading.stages[static_cast<std::size_t>(kind)];
}

} // namespace

TEST_F(ReadingTest, RefreshIsToldStageByStageAndComparedWithTheOneBefore)
{
    simulator.start({.latency = 20, .roundTrip = 10});
    corvel = corvelOf(simulator);
    const std::string group = "<feed><entry/><entry/><entry/>" + std::string(5000, ' ') + "</feed>";
    simulator.setFeed(0, "Group", group);
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::NotTried);

    const WallTime before = std::chrono::system_clock::now();
    const auto first = refreshed(corvel);
    const WallTime after = std::chrono::system_clock::now();
    EXPECT_EQ(simulator.requests().size(), 7U) << "a reading costs no request";
    EXPECT_EQ(first->outcome, Outcome::Complete);
    EXPECT_EQ(resultsOf(*first), "nDDnDD") << "the address is numeric, and there was no key to check";
    EXPECT_FALSE(first->isUpdating);
    EXPECT_LE(before, first->began);
    EXPECT_LE(first->ended, after);
    EXPECT_EQ(first->lastComplete, first->ended);
    EXPECT_THAT(first->versionThen, StartsWith("V"));
    EXPECT_EQ(first->address, simulator.address());
    EXPECT_EQ(first->tlsVersion, "1.3");
    EXPECT_GE(stageOf(*first, StageKind::TLS).duration, 10ms);
    EXPECT_GE(stageOf(*first, StageKind::Logon).duration, 30ms) << "the answer's wait and a round trip";
    EXPECT_LT(stageOf(*first, StageKind::Connect).duration + stageOf(*first, StageKind::TLS).duration +
                  stageOf(*first, StageKind::Logon).duration + stageOf(*first, StageKind::Feeds).duration,
              first->duration());
    EXPECT_EQ(stageOf(*first, StageKind::Logon).status, 200);
    const auto summary = simulator.summary();
    EXPECT_EQ(feedOf(*first, ObjectType::ManagedSystem).entries, static_cast<std::size_t>(summary.systems));
    EXPECT_EQ(feedOf(*first, ObjectType::ServiceableEvent).entries, static_cast<std::size_t>(summary.events));
    EXPECT_EQ(feedOf(*first, ObjectType::Group).bytes, group.size()) << "sent packed, told as parsed";
    EXPECT_EQ(feedOf(*first, ObjectType::Group).entries, 3U);
    for (const FeedReading& feed : first->feeds) {
        EXPECT_EQ(feed.status, 200);
        EXPECT_GE(feed.duration, 20ms);
        EXPECT_GE(feed.readAt.value_or(before), *feed.began + feed.duration);
        EXPECT_LE(feed.readAt.value_or(after), first->ended);
    }
    ASSERT_TRUE(first->certificate);
    EXPECT_EQ(hexadecimal(first->certificate->shown.fingerprint), simulator.certificateFingerprint());
    EXPECT_TRUE(first->certificate->shown.selfIssued);
    EXPECT_EQ(first->certificate->shown.subject, first->certificate->shown.issuer);
    EXPECT_LT(first->certificate->shown.validFrom, before);
    EXPECT_GT(first->certificate->shown.validUntil, after);
    EXPECT_EQ(first->certificate->compared, CertificateChange::FirstContact);

    const auto objection = [this] { return readingOf(corvel)->certificate->shown.objection; };
    EXPECT_NE(objection(), "") << "nothing is vouched for before anybody was asked";
    MainQueue::shared().runUntil([&] { return objection() == "self-signed certificate"; }, 10s);
    EXPECT_EQ(objection(), "self-signed certificate");

    const auto second = refreshed(corvel);
    EXPECT_EQ(resultsOf(*second), "nnnDnD") << "the connection was kept, the key accepted";
    EXPECT_EQ(second->certificate->compared, CertificateChange::Unchanged);
    EXPECT_EQ(second->certificate->since, first->ended);
    EXPECT_EQ(second->certificate->shown.fingerprint, first->certificate->shown.fingerprint);
    EXPECT_EQ(objection(), "self-signed certificate") << "the answer is remembered";

    simulator.setFault("expireSession");
    const auto third = refreshed(corvel);
    EXPECT_EQ(resultsOf(*third), "nnnDDD") << "a key that has ended is an answer";
    EXPECT_EQ(stageOf(*third, StageKind::SessionCheck).status, 403);

    // The console closes every connection that was kept.
    simulator.setFault("swapCertificate");
    const auto renewed = refreshed(corvel);
    EXPECT_EQ(renewed->outcome, Outcome::Complete) << "a renewal is no fault";
    EXPECT_EQ(resultsOf(*renewed), "nDDDnD");
    EXPECT_EQ(renewed->certificate->compared, CertificateChange::Changed);
    EXPECT_EQ(renewed->certificate->since, renewed->ended);
    EXPECT_FALSE(renewed->certificate->atSessionCheck);
    EXPECT_EQ(hexadecimal(renewed->certificate->shown.fingerprint), simulator.certificateFingerprint());
}

TEST_F(ReadingTest, EveryFailureIsToldAtItsStageWithItsReason)
{
    struct Case {
        std::string fault;
        std::string results;
        ReadingReason reason;
    };
    const std::vector<Case> cases = {
        {"closePort", "nF----", ReadingReason::ConnectionRefused},
        {"silentAfterAccept", "nDF---", ReadingReason::TimedOut},
        {"stallFeed:Logon", "nDDnF-", ReadingReason::TimedOut},
        {"cutBody:Logon", "nDDnF-", ReadingReason::ConnectionLost},
        {"redirectLoop:Logon", "nDDnF-", ReadingReason::TooManyRedirects},
        {"twoLengths:Logon", "nDDnF-", ReadingReason::NotUnderstood},
        {"hugeBody:Logon", "nDDnF-", ReadingReason::TooLarge},
        {"refuseLogon", "nDDnF-", ReadingReason::WrongCredentials},
        {"refuseLogon=503", "nDDnF-", ReadingReason::ServerError},
        {"failedStatus=418:Logon", "nDDnF-", ReadingReason::OtherStatus},
        {"logonWithoutKey", "nDDnFF", ReadingReason::NoSessionKey},
    };
    const auto count = static_cast<int>(cases.size());
    simulator.start({.consoles = count});
    std::vector<CorvelRef> corvels;
    std::vector<RXPromise<std::string>> refreshes;
    for (int i = 0; i < count; ++i) {
        simulator.setFault(cases[static_cast<std::size_t>(i)].fault + ":" + std::to_string(i));
        corvels.push_back(corvelOf(simulator, i));
    }
    corvels.push_back(makeCorvel("Nowhere", "no-such-console.invalid"));
    for (const CorvelRef& each : corvels) {
        refreshes.push_back(fetchInventory(each, Urgency::Fleet));
    }
    ASSERT_TRUE(MainQueue::shared().runUntil(
        [&] { return std::ranges::none_of(refreshes, [](const auto& one) { return one.isPending(); }); }, 60s));
    for (std::size_t i = 0; i + 1 < cases.size(); ++i) {
        SCOPED_TRACE(cases[i].fault);
        const auto reading = readingOf(corvels[i]);
        EXPECT_EQ(resultsOf(*reading), cases[i].results);
        EXPECT_EQ(reading->outcome, Outcome::Offline);
        ASSERT_TRUE(reading->error);
        EXPECT_EQ(reasonOf(*reading->error), cases[i].reason) << description(*reading->error);
        EXPECT_EQ(reading->offlineSince, reading->ended);
        EXPECT_TRUE(reading->missingFeeds().empty()) << "not tried is not missing";
        EXPECT_EQ(reading->certificate.has_value(), i > 1);
    }
    EXPECT_GE(stageOf(*readingOf(corvels[1]), StageKind::TLS).duration, 9s) << "the time went there";
    EXPECT_EQ(statusOf(*readingOf(corvels[8])->error), 503);

    const auto keyless = readingOf(corvels[cases.size() - 1]);
    EXPECT_EQ(resultsOf(*keyless), cases.back().results);
    EXPECT_EQ(keyless->outcome, Outcome::Partial) << "the logon was accepted, so the console is online";
    EXPECT_EQ(keyless->missingFeeds().size(), 6U);
    EXPECT_EQ(reasonOf(*keyless->feeds[0].error), ReadingReason::NoSessionKey) << "not a wrong password";

    const auto nowhere = readingOf(corvels.back());
    EXPECT_EQ(resultsOf(*nowhere), "F-----");
    EXPECT_EQ(reasonOf(*nowhere->error), ReadingReason::NameNotFound);
    const auto again = refreshed(corvels.back());
    EXPECT_EQ(again->offlineSince, nowhere->ended) << "since the first of those that failed in a row";
}

TEST_F(ReadingTest, MissingFeedKeepsItsLastTimeUntilARefreshOrAScreenReadsIt)
{
    const auto whole = refreshed(corvel);
    simulator.setFault("refuseFeed=503:LogicalPartition");
    simulator.setFault("cutBody:Group");
    const auto partial = refreshed(corvel);
    EXPECT_EQ(partial->outcome, Outcome::Partial);
    EXPECT_THAT(partial->missingFeeds(), ElementsAre("LogicalPartition", "Group"));
    const FeedReading& partitions = feedOf(*partial, ObjectType::LogicalPartition);
    EXPECT_EQ(statusOf(*partitions.error), 503);
    EXPECT_EQ(partitions.status, 503);
    EXPECT_EQ(reasonOf(*feedOf(*partial, ObjectType::Group).error), ReadingReason::ConnectionLost);
    EXPECT_EQ(partitions.readAt, feedOf(*whole, ObjectType::LogicalPartition).readAt);
    EXPECT_EQ(partial->oldestFeed(), std::min(partitions.readAt, feedOf(*whole, ObjectType::Group).readAt));
    EXPECT_EQ(partial->lastComplete, whole->ended);
    EXPECT_EQ(partial->lastCompleteDuration, whole->duration());
    EXPECT_EQ(partial->versionThen, whole->versionThen);

    simulator.clearFaults();
    ASSERT_TRUE(settled(fetchFeedWithStoredKey(corvel, "Group")).ok());
    EXPECT_THAT(readingOf(corvel)->missingFeeds(), ElementsAre("LogicalPartition"));
    ASSERT_TRUE(settled(fetchFeedWithStoredKey(corvel, "LogicalPartition")).ok());
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::Complete);
    EXPECT_GT(feedOf(*readingOf(corvel), ObjectType::LogicalPartition).readAt, partial->ended);
    EXPECT_EQ(readingOf(corvel)->lastComplete, whole->ended) << "no refresh was complete since";

    simulator.setFault("expireSession");
    ASSERT_FALSE(settled(fetchFeedWithStoredKey(corvel, "Group")).ok());
    EXPECT_THAT(readingOf(corvel)->missingFeeds(), ElementsAre("Group"));
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::Partial);
}

TEST_F(ReadingTest, CertificateThatChangesWithinAnAttemptIsToldBesideTheOneBefore)
{
    const ScratchFolder folder;
    std::ofstream(folder.file("a.story")) << "5 0 certificate swaps once\n";
    simulator.start({.story = folder.file("a.story"), .storyStill = true});
    corvel = corvelOf(simulator);
    const auto first = refreshed(corvel);
    simulator.clearRequests();
    simulator.advanceStory(5);
    const auto changed = refreshed(corvel);
    EXPECT_EQ(simulator.requests().size(), 1U) << "no password was sent";

    EXPECT_EQ(changed->outcome, Outcome::Offline);
    EXPECT_EQ(reasonOf(*changed->error), ReadingReason::CertificateChanged);
    EXPECT_EQ(resultsOf(*changed), "nnnDF-");
    const CertificateReading& certificate = changed->certificate.value();
    EXPECT_EQ(certificate.compared, CertificateChange::Changed);
    EXPECT_EQ(hexadecimal(certificate.shown.fingerprint), simulator.certificateFingerprint());
    EXPECT_EQ(certificate.since, changed->ended);
    ASSERT_TRUE(certificate.atSessionCheck);
    EXPECT_EQ(certificate.atSessionCheck->fingerprint, first->certificate->shown.fingerprint);
    EXPECT_EQ(certificate.atSessionCheckSince, first->ended);
    EXPECT_EQ(changed->lastComplete, first->ended);

    const auto taken = refreshed(corvel);
    EXPECT_EQ(taken->outcome, Outcome::Complete);
    EXPECT_EQ(taken->certificate->compared, CertificateChange::Unchanged);
    EXPECT_EQ(taken->certificate->since, changed->ended);
    EXPECT_FALSE(taken->offlineSince);
}

TEST_F(ReadingTest, FleetIsCountedWhileItIsReadAndForgottenConsolesDoNotComeBack)
{
    simulator.start({.consoles = 3, .latency = 60});
    int posts = 0;
    const auto observation =
        NotificationCenter::defaultCenter().addObserver("ReadingsDidChange", [&posts] { ++posts; });
    handler().setCorvelList({corvelOf(simulator, 0), corvelOf(simulator, 1), corvelOf(simulator, 2)});
    const std::vector<CorvelRef> list = handler().corvelList();
    simulator.setFault("closePort:1");
    std::vector<RXPromise<std::string>> refreshes;
    for (const CorvelRef& each : list) {
        refreshes.push_back(refreshCorvel(each, Urgency::Fleet));
    }
    EXPECT_EQ(Readings::shared().ofFleet().updating, 3U);
    EXPECT_TRUE(readingOf(list[0])->isUpdating);
    MainQueue::shared().drain();
    EXPECT_EQ(posts, 1) << "one for all that waited";
    MainQueue::shared().runUntil([&] { return refreshes[1].isRejected(); }, 60s);
    FleetReading fleet = Readings::shared().ofFleet();
    EXPECT_EQ(fleet.underWay, 3U);
    EXPECT_EQ(fleet.updating, 2U);
    EXPECT_EQ(fleet.offline, 1U);

    deleteCorvelAtIndex(2);
    EXPECT_EQ(readingOf(list[2])->outcome, Outcome::NotTried);
    MainQueue::shared().runUntil([&] { return !refreshes[0].isPending() && !refreshes[2].isPending(); }, 60s);
    EXPECT_EQ(readingOf(list[2])->outcome, Outcome::NotTried) << "its refresh ended after it was deleted";
    fleet = Readings::shared().ofFleet();
    EXPECT_EQ(fleet.consoles, 2U);
    EXPECT_EQ(fleet.answeredInFull, 1U);
    EXPECT_EQ(fleet.underWay, 0U);
    EXPECT_EQ(fleet.from, readingOf(list[0])->ended);
    EXPECT_TRUE(list[0]->completedFetch && list[1]->completedFetch);
    EXPECT_FALSE(list[1]->isOnline);

    const auto moved = fetchInventory(list[0], Urgency::Fleet);
    changeAddress(*list[0], "elsewhere.invalid");
    EXPECT_TRUE(settled(moved).ok());
    EXPECT_EQ(readingOf(list[0])->outcome, Outcome::NotTried) << "it was read at another address";
    EXPECT_EQ(Readings::shared().ofFleet().updating, 0U);
}

TEST_F(ReadingTest, WhatEarlierRunsKnewIsContinued)
{
    Reading known;
    known.ended = std::chrono::system_clock::now() - 24h;
    known.lastComplete = known.ended - 1h;
    known.offlineSince = known.ended;
    known.versionThen = "V1";
    known.certificate = CertificateReading{};
    known.certificate->since = known.ended - 48h;
    Readings::shared().restore(corvel, known);
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::NotTried);

    const CorvelRef online = corvelOf(simulator);
    simulator.stopConsole(0);
    const auto offline = refreshed(corvel);
    EXPECT_EQ(offline->offlineSince, known.offlineSince);
    EXPECT_EQ(offline->lastComplete, known.lastComplete);
    EXPECT_FALSE(offline->certificate) << "none was shown";
    simulator.startConsole(0);
    EXPECT_EQ(refreshed(corvel)->certificate->compared, CertificateChange::Changed);

    // The history may be opened after the first refresh has ended.
    const auto first = refreshed(online);
    known.certificate->shown = first->certificate->shown;
    Readings::shared().restore(online, known);
    EXPECT_EQ(readingOf(online)->certificate->compared, CertificateChange::Unchanged);
    EXPECT_EQ(readingOf(online)->certificate->since, known.certificate->since);
    EXPECT_EQ(readingOf(online)->lastComplete, first->ended) << "what this run has seen stays";
}

TEST_F(ReadingTest, DemonstrationConsoleIsReadWithoutANetwork)
{
    addDemoCorvel();
    const auto reading = refreshed(handler().corvelList()[0]);
    EXPECT_EQ(reading->outcome, Outcome::Complete);
    EXPECT_EQ(resultsOf(*reading), "nnnnnD");
    EXPECT_FALSE(reading->certificate);
    EXPECT_TRUE(simulator.requests().empty());
}

TEST_F(ReadingTest, ConnectionMadeAheadTellsItsStepsWithoutTheTimeItStoodStill)
{
    simulator.start({.latency = 300, .roundTrip = 20});
    corvel = corvelOf(simulator);
    const auto log = std::make_shared<ExchangeLog>();
    const auto sessionKey = settled(handler().login(corvel, CheckToken::Yes, {Urgency::Person, log})).value();
    settled(handler().fetchAllDataForCorvel(corvel, sessionKey, {Urgency::Person, log})).value();
    int made = 0;
    for (const Exchange& exchange : log->take()) {
        const TransferRecord& transfer = exchange.transfer;
        EXPECT_GE(transfer.answer.value_or(0ms), 300ms);
        EXPECT_LE(*transfer.answer, transfer.exchange);
        if (transfer.connection == TransferRecord::Connection::Made) {
            ++made;
            EXPECT_GE(transfer.secure.value_or(0ms), 20ms);
            EXPECT_LT(transfer.secure.value_or(1h), 250ms);
        }
    }
    EXPECT_EQ(made, static_cast<int>(simulator.handshakes()));
    EXPECT_GT(made, 1);
}

} // namespace lodestar::test

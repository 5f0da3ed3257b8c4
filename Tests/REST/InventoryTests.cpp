// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Tests/REST/RESTHandlerFixture.h"
#include "XML/KeptBytes.h"

#include <atomic>
#include <thread>

using testing::AllOf;
using testing::Not;
using testing::UnorderedElementsAre;

namespace lodestar::test
{

namespace
{

std::vector<std::string> unavailable(const FeedDictionary& feeds)
{
    std::vector<std::string> names;
    for (const auto& [type, schema] : feedTable) {
        if (feeds.feed(type).isNA()) {
            names.emplace_back(type);
        }
    }
    return names;
}

} // namespace

using InventoryTest = ConsoleTest;

TEST_F(InventoryTest, SixFeedsAreAskedForAndCounted)
{
    const SessionKey sessionKey = key(corvel);
    simulator.clearRequests();
    const auto feeds = allFeeds(corvel, sessionKey);
    EXPECT_EQ(feeds->size(), 6U);
    EXPECT_THAT(unavailable(*feeds), IsEmpty());

    const auto requests = simulator.requests();
    std::vector<std::string> paths;
    for (const auto& request : requests) {
        paths.push_back(request.method + " " + request.path);
        EXPECT_THAT(request.headers, ElementsAre("Host: " + host, "X-API-Session: " + *sessionKey,
                                                 "Accept: application/atom+xml", "Accept-Encoding: gzip, deflate"));
    }
    EXPECT_THAT(paths, UnorderedElementsAre("GET /rest/api/uom/ManagementConsole", "GET /rest/api/uom/ManagedSystem",
                                            "GET /rest/api/uom/VirtualIOServer", "GET /rest/api/uom/LogicalPartition",
                                            "GET /rest/api/sem/ServiceableEvent", "GET /rest/api/uom/Group"));

    corvel->setRestData(feeds);
    EXPECT_EQ(settled(handler().processInformationForCorvel(corvel)).value(), "OK");
    const auto summary = simulator.summary();
    EXPECT_EQ(corvel->numMSErrors, summary.systemErrors);
    EXPECT_EQ(corvel->numMSLEDs, summary.attentionLEDs);
    EXPECT_THAT(takeLines(), Each(HasSubstr("Corvel"))) << "fetching logs nothing";

    simulator.clearRequests();
    EXPECT_EQ(unavailable(*allFeeds(corvel, std::nullopt)).size(), 6U);
    EXPECT_EQ(simulator.requests().at(0).header("X-API-Session"), std::nullopt) << "a missing key is not sent";
}

TEST_F(InventoryTest, FeedThatCannotBeHadIsNotAvailableAndTheOthersAreKept)
{
    const SessionKey sessionKey = key(corvel);
    const std::pair<std::string, std::string> faults[] = {{"refuseFeed", "status 500"},
                                                          {"cutBody", "URLError -1005"},
                                                          {"hugeBody", "URLError -1103"},
                                                          {"twoLengths", "URLError -1011"}};
    takeLines();
    for (const auto& [fault, cause] : faults) {
        simulator.setFault(fault + ":ManagedSystem");
        const auto feeds = allFeeds(corvel, sessionKey);
        EXPECT_THAT(unavailable(*feeds), ElementsAre("ManagedSystem")) << fault;
        EXPECT_THAT(takeLines(), ElementsAre(HasSubstr("Feed failed: ManagedSystem of Console 0: " + cause))) << fault;
        corvel->numMSErrors = 7;
        corvel->numMSLEDs = 7;
        corvel->setRestData(feeds);
        EXPECT_EQ(settled(handler().processInformationForCorvel(corvel)).value(), "OK");
        EXPECT_EQ(corvel->numMSErrors, 0);
        EXPECT_EQ(corvel->numMSLEDs, 0);
        simulator.clearFaults();
    }
    simulator.setFault("refuseFeed:ManagedSystem");
    const auto refused = settled(handler().fetchDataOfType("ManagedSystem", corvel, "uom", sessionKey));
    ASSERT_FALSE(refused.ok());
    EXPECT_THAT(description(refused.error()), StartsWith("RXPromise -1000"));
}

TEST_F(InventoryTest, FeedsBeyondWhatTheDeviceCanKeepAreNotAvailable)
{
    const SessionKey sessionKey = key(corvel);
    const std::size_t before = KeptBytes::total();
    // Half as much again as its own size, once parsed.
    std::string feed = "<feed>";
    for (int i = 0; feed.size() < 1'000'000; ++i) {
        feed += "<a b='" + std::to_string(100'000 + i) + "'/>  ";
    }
    simulator.setFeed(0, "ManagedSystem", feed);
    {
        const auto feeds = allFeeds(corvel, sessionKey);
        EXPECT_THAT(unavailable(*feeds), IsEmpty());
        EXPECT_GE(KeptBytes::total() - before, feeds->feed(ObjectType::ManagedSystem).root().documentMemory());
    }
    // The last handler may still be about to let go of its feed.
    MainQueue::shared().runUntil([&] { return KeptBytes::total() == before; }, std::chrono::seconds(5));
    ASSERT_EQ(KeptBytes::total(), before);
    KeptBytes others;
    ASSERT_TRUE(others.resize(KeptBytes::limit() - before - 5'300'000));
    takeLines();
    EXPECT_THAT(unavailable(*allFeeds(corvel, sessionKey)), ElementsAre("ManagedSystem"));
    EXPECT_THAT(takeLines(), ElementsAre(HasSubstr("Feed failed: ManagedSystem of Console 0: URLError -1103")));
    EXPECT_FALSE(others.resize(KeptBytes::limit())) << "a feed leaves room for logons";
    EXPECT_TRUE(key(corvel));
}

TEST_F(InventoryTest, SwappedCertificateCostsTheFeedsUntilTheNextLogon)
{
    const SessionKey sessionKey = key(corvel);
    simulator.setFault("swapCertificate");
    EXPECT_EQ(unavailable(*allFeeds(corvel, sessionKey)).size(), 6U);
    EXPECT_THAT(takeLines(), Contains(HasSubstr("Refused the certificate of " + host)));
    EXPECT_THAT(unavailable(*allFeeds(corvel, key(corvel))), IsEmpty());
}

TEST_F(InventoryTest, LinkedValueIsFetchedOnTheCallersThread)
{
    const auto fetch = [this](const std::string& link) {
        return handler().fetchDataFromAtomLink("https://" + host + "/rest/api/uom/" + link, *corvel);
    };
    EXPECT_EQ(fetch("Group"), std::nullopt) << "no key, no request";
    const SessionKey sessionKey = key(corvel);
    simulator.setFeed(0, "Group", R"("a ""quoted"" name")");
    simulator.setFeed(0, "ManagedSystem", "\xff");
    simulator.setFeed(0, "VirtualIOServer", "");
    simulator.clearRequests();
    takeLines();
    EXPECT_EQ(fetch("Group"), "a quoted name");
    EXPECT_THAT(simulator.requests().at(0).headers,
                ElementsAre("Host: " + host, "X-API-Session: " + *sessionKey, "Accept-Encoding: gzip, deflate"));
    EXPECT_EQ(fetch("ManagedSystem"), std::nullopt) << "not UTF-8";
    EXPECT_EQ(fetch("VirtualIOServer"), "");
    EXPECT_THAT(fetch("x/1/quick/Nothing").value(), Not(HasSubstr("\""))) << "the status is not looked at";
    EXPECT_THAT(takeLines(), IsEmpty());

    simulator.setFault("cutBody:Group");
    EXPECT_EQ(fetch("Group"), std::nullopt);
    EXPECT_THAT(lineSources(),
                ElementsAre(StartsWith(
                    "2 0 Shared/Controllers/REST/RESTHandler -[RESTHandler fetchDataFromAtomLink:corvel:]:")));
    EXPECT_THAT(takeLines(), ElementsAre(StartsWith("Error: URLError")));
}

TEST_F(InventoryTest, WorkingListIsReadOnAnyThreadWhileItChanges)
{
    handler().setCorvelList({corvel, makeCorvel("b", "1")});
    std::atomic<bool> over{false};
    std::thread reader([&over] {
        while (!over) {
            const auto list = handler().corvelListSnapshot();
            for (const CorvelRef& each : *list) {
                ASSERT_TRUE(each->address());
            }
        }
    });
    const auto before = handler().corvelListSnapshot();
    for (int i = 0; i < 1000; ++i) {
        handler().addCorvel(corvel);
        corvel->setAddress("address " + std::to_string(i));
        handler().removeCorvelAtIndex(2);
    }
    over = true;
    reader.join();
    handler().removeCorvelAtIndex(1);
    handler().removeCorvelAtIndex(99);
    EXPECT_THAT(*handler().corvelListSnapshot(), ElementsAre(corvel));
    EXPECT_EQ(before->size(), 2U);
}

TEST_F(InventoryTest, FleetWithBadConsolesRefreshesEachForItself)
{
    const simulator::Settings settings{.consoles = 24};
    simulator.start(settings);
    const std::vector<std::string> faults = {"refuseLogon", "closePort", "cutBody:ManagedSystem", "refuseFeed",
                                             "redirectLoop:Group"};
    std::vector<CorvelRef> corvels;
    for (int i = 0; i < settings.consoles; ++i) {
        corvels.push_back(corvelOf(simulator, i));
        if (static_cast<std::size_t>(i) < faults.size()) {
            simulator.setFault(faults[static_cast<std::size_t>(i)] + ":" + std::to_string(i));
        }
    }
    std::vector<RXPromise<std::string>> refreshes;
    testing::internal::CaptureStdout();
    for (const CorvelRef& each : corvels) {
        refreshes.push_back(
            fetchInventory(each, Urgency::Fleet)
                .then([](const std::string& done) { return done; }, [](const Error&) { return std::string(); }));
    }
    const bool allSettled = settled(RXPromise<std::string>::all(refreshes)).ok();
    std::string told = testing::internal::GetCapturedStdout();
    ASSERT_TRUE(allSettled);
    for (const std::string& line : takeLines()) {
        told += line + '\n';
    }
    EXPECT_THAT(told, AllOf(testing::ContainsRegex("Starting request\n(.*\n)*Ignoring SSL\n(.*\n)*Receiving data\n"),
                            HasSubstr("Console 4")));
    for (const std::string& secret : {simulator.password(), defaults().stringForKey(*corvels[4]->address()).value(),
                                      std::string("<LogonRequest"), std::string("<entry")}) {
        EXPECT_THAT(told, Not(HasSubstr(secret))) << "neither password nor key nor body is told";
    }
    for (int i = 0; i < settings.consoles; ++i) {
        SCOPED_TRACE(i);
        const CorvelRef& each = corvels[static_cast<std::size_t>(i)];
        EXPECT_EQ(each->isOnline, i > 1);
        if (i < 2) {
            EXPECT_EQ(each->restData(), nullptr);
            continue;
        }
        const std::vector<std::string> expected = i == 2   ? std::vector<std::string>{"ManagedSystem"}
                                                  : i == 4 ? std::vector<std::string>{"Group"}
                                                           : std::vector<std::string>{};
        const auto missing = unavailable(*each->restData());
        EXPECT_TRUE(i == 3 ? missing.size() == 6 : missing == expected) << testing::PrintToString(missing);
        if (i > 4) {
            EXPECT_EQ(each->numMSErrors, simulator.summary(i).systemErrors);
        }
    }
}

} // namespace lodestar::test

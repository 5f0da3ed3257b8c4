// SPDX-License-Identifier: Apache-2.0
#include "Platform/Resources.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace lodestar::test
{

namespace
{

constexpr std::string_view notProcessed = "Processing did not happen";

/// A document whose first sample has that list of errors.
std::string documentSaying(const std::string& errorInfo)
{
    return R"({"systemUtil":{"utilSamples":[{"sampleInfo":{"errorInfo":)" + errorInfo + "}}]}}";
}

} // namespace

class MetricsTest : public RESTHandlerTest
{
protected:
    static Result<MetricsDocument> fetch(const CorvelRef& corvel, const SessionKey& sessionKey,
                                         const std::string& systemID)
    {
        return settled(handler().fetchPCMDataForManagedSystem(systemID, corvel, sessionKey));
    }
    /// The reason for which the metrics were refused; "fulfilled" when they were not.
    static std::string refusal(const CorvelRef& corvel, const SessionKey& sessionKey, const std::string& systemID)
    {
        const auto result = fetch(corvel, sessionKey, systemID);
        if (result.ok()) {
            return "fulfilled";
        }
        EXPECT_EQ(result.error().domain, "RXPromise");
        EXPECT_EQ(result.error().code, -1000);
        return result.error().failureReason;
    }
    static std::string firstSystem(const CorvelRef& corvel, const SessionKey& sessionKey)
    {
        const auto feed = settled(handler().fetchDataOfType("ManagedSystem", corvel, "uom", sessionKey));
        return feed.value().path({"entry", "content", "ManagedSystem", "Metadata", "Atom", "AtomID"}).text().value();
    }
};

TEST_F(MetricsTest, FeedLeadsToTheDocument)
{
    simulator::SimulatorProcess simulator{{}};
    const CorvelRef corvel = corvelOf(simulator);
    const SessionKey sessionKey = key(corvel);
    const std::string system = firstSystem(corvel, sessionKey);
    simulator.clearRequests();
    takeLines();
    const auto document = fetch(corvel, sessionKey, system);
    ASSERT_TRUE(document.ok());
    EXPECT_EQ(document.value().root().path({"systemUtil", "utilSamples"}).elements().size(), 240U);

    const std::string path = "/rest/api/pcm/ManagedSystem/" + system + "/ProcessedMetrics";
    const std::string host = simulator.address() + ":12443";
    const auto requests = simulator.requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].method + " " + requests[0].path, "GET " + path + "?NoOfSamples=240");
    EXPECT_THAT(requests[0].headers, ElementsAre("Host: " + host, "X-API-Session: " + *sessionKey,
                                                 "Accept: application/atom+xml, application/vnd.ornis.varnex.uom+xml",
                                                 "Accept-Encoding: gzip, deflate"));
    EXPECT_EQ(requests[1].method + " " + requests[1].path, "GET " + path + "/240.json");
    EXPECT_THAT(requests[1].headers,
                ElementsAre("Host: " + host, "X-API-Session: " + *sessionKey, "Accept-Encoding: gzip, deflate"));

    EXPECT_THAT(lineSources(), testing::Each("2 0 Shared/Controllers/REST/RESTHandler -[RESTHandler "
                                             "fetchPCMDataForManagedSystem:corvel:key:]"));
    EXPECT_THAT(lineNumbers(), ElementsAre(261, 272, 283));
    EXPECT_THAT(takeLines(), ElementsAre("Request: <URLRequest> { URL: https://" + host + path + "?NoOfSamples=240 }",
                                         "RESTHandler: fetching PCM data for Console 0",
                                         "RESTHandler: fetching PCM error message for Console 0"));
}

TEST_F(MetricsTest, FirstAnswerDecidesWhetherThereIsASecondRequest)
{
    simulator::SimulatorProcess simulator{{}};
    const CorvelRef corvel = corvelOf(simulator);
    const SessionKey sessionKey = key(corvel);
    const std::string system = firstSystem(corvel, sessionKey);
    simulator.clearRequests();
    for (const char* fault : {"refuseFeed:Metrics", "failedStatus:Metrics"}) {
        simulator.setFault(fault);
        EXPECT_EQ(refusal(corvel, sessionKey, system), "") << fault;
        simulator.clearFaults();
    }
    EXPECT_EQ(refusal(corvel, sessionKey, "nothing"), "");
    EXPECT_EQ(refusal(corvel, std::nullopt, system), "") << "without a key";
    EXPECT_FALSE(simulator.requests().back().header("X-API-Session"));
    simulator.setFault("cutBody:Metrics");
    const auto cut = fetch(corvel, sessionKey, system);
    ASSERT_FALSE(cut.ok());
    EXPECT_EQ(cut.error().domain, urlErrorDomain);
    EXPECT_THAT(takeLines(), Contains(HasSubstr("Metrics failed: Console 0: URLError -1005")));
    EXPECT_EQ(simulator.requests().size(), 5U);
    simulator.clearFaults();

    // A feed that leads nowhere.
    for (const char* feed : {"", "<feed/>", "<feed><entry/></feed>", "<feed><entry><link/></entry></feed>",
                             "<feed><entry><link href='http://127.0.0.1/'/></entry></feed>", "{}"}) {
        simulator.setFeed(0, "Metrics", feed);
        EXPECT_EQ(refusal(corvel, sessionKey, system), notProcessed) << feed;
    }
    EXPECT_EQ(simulator.requests().size(), 11U);
    EXPECT_THAT(takeLines(), Contains("RESTHandler: fetching PCM error message for Console 0").Times(6));
}

TEST_F(MetricsTest, SecondAnswerIsReadWhateverItsStatus)
{
    simulator::SimulatorProcess simulator{{}};
    const CorvelRef corvel = corvelOf(simulator);
    const SessionKey sessionKey = key(corvel);
    const std::string system = firstSystem(corvel, sessionKey);
    for (const char* fault : {"failedStatus:MetricsDocument", "nullMetrics", "chunked:MetricsDocument"}) {
        simulator.setFault(fault);
        EXPECT_EQ(refusal(corvel, sessionKey, system), "fulfilled") << fault;
        simulator.clearFaults();
    }
    for (const char* fault :
         {"refuseFeed:MetricsDocument", "cutBody:MetricsDocument", "emptyFeed:MetricsDocument",
          "malformedFeed:MetricsDocument", "reset:MetricsDocument", "unprocessedMetrics", "emptyMetrics"}) {
        simulator.setFault(fault);
        EXPECT_EQ(refusal(corvel, sessionKey, system), notProcessed) << fault;
        simulator.clearFaults();
    }
}

TEST_F(MetricsTest, MessageOfTheFirstSampleDecides)
{
    simulator::SimulatorProcess simulator{{}};
    const CorvelRef corvel = corvelOf(simulator);
    const SessionKey sessionKey = key(corvel);
    const std::string system = firstSystem(corvel, sessionKey);
    const auto outcome = [&](const std::string& document) {
        simulator.setFeed(0, "MetricsDocument", document);
        return refusal(corvel, sessionKey, system);
    };
    for (const char* refused :
         {R"([{"errMsg":"Processing did not happen"}])", R"([{"errMsg":"So: Processing did not happen, as before"}])",
          R"([{"id":1},{"errMsg":"Processing did not happen"}])"}) {
        EXPECT_EQ(outcome(documentSaying(refused)), notProcessed) << refused;
    }
    for (const char* taken : {R"([{"errMsg":""}])", R"([{"errMsg":"processing did not happen"}])", "[]", "null",
                              R"([{"errMsg":null}])", R"([{"errMsg":7}])", R"("Processing did not happen")",
                              R"([{"errMsg":"late"},{"errMsg":"Processing did not happen"}])"}) {
        EXPECT_EQ(outcome(documentSaying(taken)), "fulfilled") << taken;
    }
    EXPECT_EQ(outcome(R"({"systemUtil":{"utilSamples":[null]}})"), "fulfilled");
    for (const char* without : {"{}", "[]", R"({"systemUtil":[]})", R"({"systemUtil":{"utilSamples":[]}})",
                                R"({"systemUtil":{"utilSamples":{"0":{}}}})", "<feed/>", "{\"systemUtil\":\"\xFF\"}"}) {
        EXPECT_EQ(outcome(without), notProcessed) << without;
    }
}
TEST_F(MetricsTest, DemoConsoleReadsThePackageAtOnce)
{
    Resources::install(makeFolderResources(LODESTAR_DEMO_FOLDER));
    const CorvelRef corvel = makeCorvel("Demo Corvel", "127.0.0.1");
    corvel->setDemo(true);
    const auto promise = handler().fetchPCMDataForManagedSystem(std::nullopt, corvel, "OK");
    ASSERT_TRUE(promise.isFulfilled());
    const MetricsDocument document = promise.result()->value();
    EXPECT_EQ(document.root().path({"systemUtil", "utilSamples"}).elements().size(), 240U);
    Resources::install(makeFolderResources("/nowhere"));
    const auto without = handler().fetchPCMDataForManagedSystem(std::nullopt, corvel, "OK");
    ASSERT_TRUE(without.isRejected());
    EXPECT_EQ(without.result()->error().domain, metricsErrorDomain);
    EXPECT_THAT(takeLines(), IsEmpty());
    Resources::install(makeFolderResources(LODESTAR_DEMO_FOLDER));
}

} // namespace lodestar::test

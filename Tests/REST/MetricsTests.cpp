// SPDX-License-Identifier: Apache-2.0
#include "Tests/REST/RESTHandlerFixture.h"

#include <utility>

namespace lodestar::test
{

constexpr std::string_view notProcessed = "Processing did not happen";

class MetricsTest : public ConsoleTest
{
protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        sessionKey = key(corvel);
        const auto feed = settled(handler().fetchDataOfType("ManagedSystem", corvel, "uom", sessionKey));
        system = feed.value().path({"entry", "content", "ManagedSystem", "Metadata", "Atom", "AtomID"}).text().value();
        simulator.clearRequests();
        takeLines();
    }
    Result<MetricsDocument> fetch(const std::string& systemID) const
    {
        return settled(handler().fetchPCMDataForManagedSystem(systemID, corvel, sessionKey));
    }
    /// The reason for which the metrics were refused; "fulfilled" when they were not.
    std::string refusal() const
    {
        const auto result = fetch(system);
        if (result.ok()) {
            return "fulfilled";
        }
        EXPECT_THAT(description(result.error()), StartsWith("RXPromise -1000"));
        return result.error().failureReason;
    }
    std::string refusalUnder(const std::string& fault)
    {
        simulator.setFault(fault);
        std::string reason = refusal();
        simulator.clearFaults();
        return reason;
    }

    std::string system;
    SessionKey sessionKey;
};

TEST_F(MetricsTest, FeedLeadsToTheDocument)
{
    const auto document = fetch(system);
    ASSERT_TRUE(document.ok());
    EXPECT_EQ(document.value().root().path({"systemUtil", "utilSamples"}).elements().size(), 240U);

    const std::string path = "/rest/api/pcm/ManagedSystem/" + system + "/ProcessedMetrics";
    const auto requests = simulator.requests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].method + " " + requests[0].path, "GET " + path + "?NoOfSamples=240");
    EXPECT_THAT(requests[0].headers, ElementsAre("Host: " + host, "X-API-Session: " + *sessionKey,
                                                 "Accept: application/atom+xml, application/vnd.ornis.varnex.uom+xml",
                                                 "Accept-Encoding: gzip, deflate"));
    EXPECT_EQ(requests[1].method + " " + requests[1].path, "GET " + path + "/240.json");
    EXPECT_THAT(requests[1].headers,
                ElementsAre("Host: " + host, "X-API-Session: " + *sessionKey, "Accept-Encoding: gzip, deflate"));

    const std::string source =
        "2 0 Shared/Controllers/REST/RESTHandler -[RESTHandler fetchPCMDataForManagedSystem:corvel:key:]:";
    EXPECT_THAT(lineSources(), ElementsAre(source + "261", source + "272", source + "283"));
    EXPECT_THAT(takeLines(), ElementsAre("Request: <URLRequest> { URL: https://" + host + path + "?NoOfSamples=240 }",
                                         "RESTHandler: fetching PCM data for Console 0",
                                         "RESTHandler: fetching PCM error message for Console 0"));
}

TEST_F(MetricsTest, FirstAnswerDecidesWhetherThereIsASecondRequest)
{
    EXPECT_EQ(refusalUnder("refuseFeed:Metrics"), "");
    EXPECT_EQ(refusalUnder("failedStatus:Metrics"), "");
    EXPECT_FALSE(fetch("nothing").ok());
    simulator.setFault("cutBody:Metrics");
    EXPECT_EQ(fetch(system).error().domain, urlErrorDomain);
    EXPECT_THAT(takeLines(), Contains(HasSubstr("Metrics failed: Console 0: URLError -1005")));
    simulator.clearFaults();
    const SessionKey kept = std::exchange(sessionKey, std::nullopt);
    EXPECT_EQ(refusal(), "") << "without a key";
    EXPECT_FALSE(simulator.requests().back().header("X-API-Session"));
    sessionKey = kept;
    EXPECT_EQ(simulator.requests().size(), 5U);

    simulator.setFeed(0, "Metrics", "<feed><entry><link href='http://127.0.0.1/'/></entry></feed>");
    EXPECT_EQ(refusal(), notProcessed) << "an address without TLS";
    EXPECT_EQ(simulator.requests().size(), 6U);
    EXPECT_THAT(takeLines(), Contains("RESTHandler: fetching PCM error message for Console 0"));
}

TEST_F(MetricsTest, FeedCutAfterTheAddressOfItsFirstLinkLeadsThereAndCutBeforeLeadsNowhere)
{
    const std::string before = "<a:feed xmlns:a='u'><a:entry><a:title/><a:link rel='x' a:href = '";
    const auto address = "https://" + host + "/rest/api/pcm/ManagedSystem/" + system + "/ProcessedMetrics/7.json";
    const std::string after = "'/><a:link href='2'/></a:entry><a:entry><a:link href='3'/></a:entry></a:feed>";
    for (std::size_t length = 0; length <= before.size(); ++length) {
        simulator.setFeed(0, "Metrics", before.substr(0, length));
        EXPECT_EQ(refusal(), notProcessed) << length;
    }
    for (std::size_t length = 0; length <= after.size(); ++length) {
        simulator.setFeed(0, "Metrics", before + address + after.substr(0, length));
        EXPECT_EQ(refusal(), "fulfilled") << length;
    }
}

TEST_F(MetricsTest, SecondAnswerIsReadWhateverItsStatusAndTheMessageOfItsFirstSampleDecides)
{
    for (const char* fault : {"failedStatus:MetricsDocument", "nullMetrics", "chunked:MetricsDocument"}) {
        EXPECT_EQ(refusalUnder(fault), "fulfilled") << fault;
    }
    for (const char* fault : {"cutBody:MetricsDocument", "emptyFeed:MetricsDocument", "malformedFeed:MetricsDocument",
                              "unprocessedMetrics", "emptyMetrics"}) {
        EXPECT_EQ(refusalUnder(fault), notProcessed) << fault;
    }
    const auto outcome = [&](const std::string& document) {
        simulator.setFeed(0, "MetricsDocument", document);
        return refusal();
    };
    const auto outcomeOf = [&](const std::string& errorInfo) {
        return outcome(R"({"systemUtil":{"utilSamples":[{"sampleInfo":{"errorInfo":)" + errorInfo + "}}]}}");
    };
    for (const char* refused : {R"([{"errMsg":"So: Processing did not happen, as before"}])",
                                R"([{"id":1},{"errMsg":"Processing did not happen"}])"}) {
        EXPECT_EQ(outcomeOf(refused), notProcessed) << refused;
    }
    for (const char* taken :
         {R"([{"errMsg":""}])", R"([{"errMsg":"processing did not happen"}])", "null", R"([{"errMsg":7}])",
          R"("Processing did not happen")", R"([{"errMsg":"late"},{"errMsg":"Processing did not happen"}])"}) {
        EXPECT_EQ(outcomeOf(taken), "fulfilled") << taken;
    }
    EXPECT_EQ(outcome(R"({"systemUtil":{"utilSamples":[null]}})"), "fulfilled");
    for (const char* without :
         {"{}", R"({"systemUtil":[]})", R"({"systemUtil":{"utilSamples":{"0":{}}}})", "<feed/>"}) {
        EXPECT_EQ(outcome(without), notProcessed) << without;
    }
}

} // namespace lodestar::test

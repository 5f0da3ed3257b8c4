// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/CorvelRequest.h"
#include "Platform/URLLoading/URLError.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <set>
#include <thread>

namespace lodestar::test
{

namespace
{

using LogonTest = ConsoleTest;

TEST_F(LogonTest, FirstLogonGoesOutByteForByteAndItsKeyIsStored)
{
    simulator.start({.user = "o'op & \"co\"", .password = "p&<w>\"'é"});
    corvel = corvelOf(simulator);
    const SessionKey sessionKey = key(corvel);
    ASSERT_TRUE(sessionKey);
    EXPECT_EQ(defaults().stringForKey(simulator.address()), sessionKey);
    EXPECT_FALSE(corvel->isOnline);

    const auto requests = simulator.requests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].method + " " + requests[0].path, "PUT /rest/api/web/Logon");
    const std::string body =
        "<LogonRequest xmlns=\"http://www.ornis.example/xmlns/systems/web/mc/2012_10/\" "
        "xmlns:ns2=\"http://www.w3.org/XML/1998/namespace/k2\" schemaVersion=\"V1_0\"><Metadata><Atom/></Metadata>"
        "<UserID kxe=\"false\" kb=\"CUR\">o'op & \"co\"</UserID>"
        "<Password kxe=\"false\" kb=\"CUR\">p&<w>\"'é</Password></LogonRequest>";
    EXPECT_EQ(requests[0].body, body);
    EXPECT_THAT(requests[0].headers,
                ElementsAre("Host: " + simulator.address() + ":12443", "Accept: application/vnd.ornis.varnex.web+xml",
                            "Content-Type: application/vnd.ornis.varnex.web+xml", "Accept-Encoding: gzip, deflate",
                            "Content-Length: " + std::to_string(body.size())));
    EXPECT_EQ(handler().loginRequestForCorvel(*corvel).timeout, std::chrono::seconds(10));

    EXPECT_THAT(lineSources(),
                Each(StartsWith("2 0 Shared/Controllers/REST/RESTHandler -[RESTHandler login:checkToken:]:")));
    EXPECT_THAT(takeLines(),
                ElementsAre("Corvel: Console 0, just used firstOpen case", "Console 0's Corvel's saved token is nil"));
}

TEST_F(LogonTest, StoredKeyIsCheckedAndRenewedWhenTheConsoleRefusesIt)
{
    const SessionKey first = key(corvel);
    takeLines();
    simulator.clearRequests();

    EXPECT_EQ(key(corvel), first);
    auto requests = simulator.requests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].method + " " + requests[0].path, "GET /rest/api/uom/ManagementConsole");
    EXPECT_THAT(requests[0].headers, ElementsAre("Host: " + host, "X-API-Session: " + *first,
                                                 "Accept: application/atom+xml, application/vnd.ornis.varnex.uom+xml",
                                                 "Accept-Encoding: gzip, deflate"));
    EXPECT_THAT(takeLines(),
                ElementsAre("Corvel: Console 0, just used firstOpen case",
                            "Console 0's Corvel's saved token is not nil", "Session is valid for Corvel: Console 0"));
    EXPECT_EQ(handler().sessionValidRequestWithToken(*first, *corvel).timeout, URLRequest::defaultTimeout);

    // Refused, and failing in transport, come to the same.
    for (const std::string fault : {"expireSession", "cutBody:SessionCheck"}) {
        const SessionKey stale = defaults().stringForKey(simulator.address());
        simulator.setFault(fault);
        simulator.clearRequests();
        const SessionKey renewed = key(corvel);
        ASSERT_TRUE(renewed);
        EXPECT_NE(renewed, stale);
        EXPECT_EQ(defaults().stringForKey(simulator.address()), renewed);
        requests = simulator.requests();
        ASSERT_EQ(requests.size(), 2U) << fault;
        EXPECT_EQ(requests[1].path, "/rest/api/web/Logon");
        EXPECT_EQ(requests[1].header("X-API-Session"), std::nullopt);
        EXPECT_THAT(takeLines(), ElementsAre("Corvel: Console 0, just used firstOpen case",
                                             "Console 0's Corvel's saved token is not nil",
                                             "Session is no longer valid for Corvel: Console 0"));
    }
}

TEST_F(LogonTest, UncheckedKeyIsTakenAsItIsWithoutARequest)
{
    corvel = makeCorvel("Attic", "127.0.0.1");
    EXPECT_EQ(key(corvel, CheckToken::No), std::nullopt);
    defaults().setString("kept", "127.0.0.1");
    const RXPromise<SessionKey> promise = handler().login(corvel, CheckToken::No);
    EXPECT_TRUE(promise.isFulfilled()) << "nothing has to be waited for";
    EXPECT_EQ(key(corvel, CheckToken::No), "kept");
    EXPECT_THAT(takeLines(), Each("Corvel: Attic, did not use firstOpen case"));

    corvel->setName(std::nullopt);
    corvel->setAddress(std::nullopt);
    EXPECT_EQ(key(corvel, CheckToken::No), std::nullopt);
    EXPECT_THAT(takeLines(), ElementsAre("Corvel: (null), did not use firstOpen case"));
    EXPECT_EQ(handler().loginRequestForCorvel(*corvel).url, "https://(null):12443/rest/api/web/Logon");
    EXPECT_FALSE(settled(handler().login(corvel, CheckToken::Yes)).ok());
}

TEST_F(LogonTest, FailedLogonsRejectWithTheirErrorAndLeaveTheStoreAlone)
{
    simulator.setFault("refuseLogon");
    defaults().setString("stale", simulator.address());
    const Result<SessionKey> refused = settled(handler().login(corvel, CheckToken::Yes));
    ASSERT_FALSE(refused.ok());
    EXPECT_THAT(description(refused.error()), StartsWith("RXPromise -1000"));
    EXPECT_EQ(refused.error().failureReason, "");
    EXPECT_EQ(shownDescription(refused.error()), "The console did not accept user or password.");
    EXPECT_THAT(takeLines(), Contains("Logon failed for Corvel: Console 0: status 401").Times(1));

    simulator.stopConsole(0);
    const Result<SessionKey> unreachable = settled(handler().login(corvel, CheckToken::Yes));
    ASSERT_FALSE(unreachable.ok());
    EXPECT_EQ(unreachable.error().code, static_cast<int>(URLErrorCode::CannotConnectToHost));
    EXPECT_THAT(takeLines(), Contains(HasSubstr("Logon failed for Corvel: Console 0: URLError -1004")));
    EXPECT_EQ(defaults().stringForKey(simulator.address()), "stale");
}

TEST_F(LogonTest, NothingOfALogonGoesToAnotherHost)
{
    simulator.start({.consoles = 2});
    corvel = corvelOf(simulator);
    simulator.setFault("redirectOtherHost:Logon:0");
    for (const bool renewed : {false, true}) {
        EXPECT_EQ(settled(handler().login(corvel, CheckToken::Yes)).error().domain, "RXPromise");
        EXPECT_THAT(takeLines(), Contains("Logon failed for Corvel: Console 0: status 307"));
        defaults().setString("stale", simulator.address()); // then the plain request logs on
        EXPECT_THAT(simulator.requests(), Each(testing::Field(&simulator::RecordedRequest::console, 0))) << renewed;
    }
}

TEST_F(LogonTest, AnswerWithoutAKeyYieldsNoneAndRemovesTheStoredOne)
{
    for (const std::string fault :
         {"logonWithoutKey", "logonNotXML:html", "logonNotXML:empty", "logonNotXML:json", "longKey"}) {
        simulator.clearFaults();
        simulator.setFault(fault);
        defaults().setString("stale", simulator.address());
        EXPECT_EQ(key(corvel), std::nullopt) << fault;
        EXPECT_EQ(defaults().stringForKey(simulator.address()), std::nullopt) << fault;
        EXPECT_THAT(takeLines(), Contains("Logon failed for Corvel: Console 0: status 200 without a session key"));
    }
    defaults().setString(std::string(1'000'000, 'k'), simulator.address());
    EXPECT_EQ(key(corvel, CheckToken::No), std::nullopt) << "no key either when an earlier version kept it";
    simulator.clearFaults();
    EXPECT_TRUE(key(corvel));
}

TEST_F(LogonTest, ConsoleDeletedMeanwhileGetsNoKeyBack)
{
    simulator.setLatency(100);
    const auto promise = handler().login(corvel, CheckToken::Yes);
    context().deleteObject(corvel);
    EXPECT_TRUE(settled(promise).value()) << "whoever waits gets the key all the same";
    EXPECT_THAT(defaults().allKeys(), IsEmpty());

    // The key comes in after the deletion has removed the entry and before it deletes the record. A console that was
    // put in its place keeps its own.
    for (const bool replaced : {false, true}) {
        const CorvelRef next = corvelOf(simulator);
        const auto logon = handler().login(next, CheckToken::Yes);
        while (logon.isPending()) {
            std::this_thread::yield();
        }
        EXPECT_TRUE(defaults().stringForKey(simulator.address()));
        context().deleteObject(next);
        if (replaced) {
            defaults().setString("new", simulator.address());
        }
        MainQueue::shared().drain();
        EXPECT_EQ(defaults().stringForKey(simulator.address()), replaced ? SessionKey("new") : std::nullopt);
    }
}

TEST_F(LogonTest, RecordEditedMeanwhileChangesNothingOfTheLogonUnderWay)
{
    simulator.setLatency(100);
    defaults().setString("stale", simulator.address());
    const auto promise = handler().login(corvel, CheckToken::Yes);
    corvel->setName("Edited");
    corvel->setAddress("elsewhere.invalid");
    corvel->setPassword("another");
    const SessionKey sessionKey = settled(promise).value();
    EXPECT_TRUE(sessionKey);
    EXPECT_EQ(defaults().stringForKey(simulator.address()), sessionKey);
    EXPECT_EQ(defaults().stringForKey("elsewhere.invalid"), std::nullopt);
    EXPECT_THAT(takeLines(), Each(HasSubstr("Console 0")));
}

TEST_F(LogonTest, ConsolesLogOnSideBySideEachWithItsOwnKey)
{
    const simulator::Settings settings{.consoles = 60, .latency = 20};
    simulator.start(settings);
    std::vector<RXPromise<SessionKey>> logons;
    for (int i = 0; i < settings.consoles; ++i) {
        logons.push_back(handler().login(corvelOf(simulator, i), CheckToken::Yes));
    }
    const auto keys = settled(RXPromise<SessionKey>::all(logons)).value();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        ASSERT_TRUE(keys[i]);
        EXPECT_EQ(defaults().stringForKey(simulator.address(static_cast<int>(i))), keys[i]);
    }
    EXPECT_EQ((std::set<SessionKey>(keys.begin(), keys.end())).size(), keys.size());
}

TEST(CorvelRequestTest, KeepsTheBodyOfTheLastResponseOnly)
{
    CorvelRequest request;
    request.didReceiveResponse({"https://a/", 302, {}, -1});
    request.didReceiveData(std::string("first"));
    request.didReceiveResponse({"https://b/", 200, {}, -1});
    request.didReceiveData(std::string("second"));
    request.didReceiveData(std::string("third"));
    EXPECT_EQ(request.response().url, "https://b/");
    EXPECT_EQ(request.data(), "secondthird");
}

struct FakeChallenge : AuthenticationChallenge {
    explicit FakeChallenge(Method theMethod) : method(theMethod) {}
    Method authenticationMethod() const override { return method; }
    std::string host() const override { return "console"; }
    int port() const override { return 12443; }
    void useCredential() override { answers += "used"; }
    void continueWithoutCredential() override { answers += "went on"; }

    const Method method;
    std::string answers;
};

TEST(CorvelRequestTest, AnswersNoChallengeButTheServersTrust)
{
    using enum AuthenticationChallenge::Method;
    CorvelRequest request;
    for (const auto method : {ServerTrust, HTTPBasic, HTTPDigest, ClientCertificate, Other}) {
        FakeChallenge challenge(method);
        request.willSendRequestForAuthenticationChallenge(challenge);
        EXPECT_EQ(challenge.answers, method == ServerTrust ? "used" : "went on");
    }
}

} // namespace

} // namespace lodestar::test

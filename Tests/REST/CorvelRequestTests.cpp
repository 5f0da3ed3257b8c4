// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/CorvelRequest.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <gmock/gmock.h>

#include <atomic>

namespace lodestar::test
{

namespace
{

class FakeChallenge : public AuthenticationChallenge
{
public:
    explicit FakeChallenge(Method method) : m_method(method) {}
    Method authenticationMethod() const override { return m_method; }
    std::string host() const override { return "console"; }
    int port() const override { return 12443; }
    void useCredential() override { used = true; }
    void continueWithoutCredential() override { went = true; }

    bool used = false;
    bool went = false;

private:
    const Method m_method;
};

} // namespace

using CorvelRequestTest = ConsoleTest;

TEST_F(CorvelRequestTest, ReachesAConsoleThatNobodyVouchesForAndSaysSo)
{
    URLRequest request;
    request.url = "https://" + host + "/rest/api/uom/Group";
    const OperationQueue queue;
    std::atomic<int> status = 0;
    auto corvelRequest = std::make_shared<CorvelRequest>();
    const std::weak_ptr<CorvelRequest> watched = corvelRequest;
    testing::internal::CaptureStdout();
    corvelRequest->sendRequest(request, queue,
                               [&](const URLResponse* response, const std::string* data, const Error* error) {
                                   EXPECT_TRUE(error == nullptr && data != nullptr && !data->empty());
                                   status += response != nullptr ? response->statusCode : 0;
                               });
    corvelRequest.reset();
    const bool ended = MainQueue::shared().runUntil([&] { return watched.expired(); }, std::chrono::seconds(60));
    std::fflush(stdout);
    const std::string printed = testing::internal::GetCapturedStdout();
    EXPECT_TRUE(ended) << "nobody keeps a request that has ended";
    EXPECT_EQ(status, 401) << "a status is no error, and the closure is called once";
    EXPECT_THAT(printed, testing::HasSubstr("Starting request\n"));
    EXPECT_THAT(printed, testing::ContainsRegex("Ignoring SSL\n(.*\n)*Receiving data\n"));
}

TEST_F(CorvelRequestTest, KeepsTheBodyOfTheLastResponseOnly)
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

TEST_F(CorvelRequestTest, AnswersNoChallengeButTheServersTrust)
{
    using Method = AuthenticationChallenge::Method;
    CorvelRequest request;
    for (const Method method :
         {Method::ServerTrust, Method::HTTPBasic, Method::HTTPDigest, Method::ClientCertificate, Method::Other}) {
        FakeChallenge challenge(method);
        request.willSendRequestForAuthenticationChallenge(challenge);
        EXPECT_EQ(challenge.used, method == Method::ServerTrust);
        EXPECT_NE(challenge.went, challenge.used);
    }
}

} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/CorvelRequest.h"
#include "Platform/URLLoading/URLErrorCode.h"
#include "Tests/REST/RESTHandlerFixture.h"

#include <gmock/gmock.h>

#include <atomic>
#include <future>

namespace lodestar::test
{

namespace
{

/// What a closure was given, copied.
struct Outcome {
    std::optional<URLResponse> response;
    std::optional<std::string> data;
    std::optional<Error> error;
};

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

class CorvelRequestTest : public RESTHandlerTest
{
protected:
    Outcome send(const URLRequest& request)
    {
        std::promise<Outcome> promise;
        auto corvelRequest = std::make_shared<CorvelRequest>();
        const std::weak_ptr<CorvelRequest> watched = corvelRequest;
        corvelRequest->sendRequest(request, m_queue,
                                   [&](const URLResponse* response, const std::string* data, const Error* error) {
                                       Outcome outcome;
                                       outcome.response = response != nullptr ? std::optional(*response) : std::nullopt;
                                       outcome.data = data != nullptr ? std::optional(*data) : std::nullopt;
                                       outcome.error = error != nullptr ? std::optional(*error) : std::nullopt;
                                       ++m_calls;
                                       promise.set_value(std::move(outcome));
                                   });
        corvelRequest.reset();
        Outcome outcome = promise.get_future().get();
        m_queue.waitUntilAllOperationsAreFinished();
        EXPECT_EQ(m_calls.exchange(0), 1);
        EXPECT_TRUE(watched.expired()) << "nobody keeps a request that has ended";
        return outcome;
    }

private:
    OperationQueue m_queue{"requests"};
    std::atomic<int> m_calls{0};
};
TEST_F(CorvelRequestTest, ReachesAConsoleThatNobodyVouchesForAndSaysSo)
{
    simulator::SimulatorProcess simulator{{}};
    URLRequest request;
    request.url = "https://" + simulator.address() + ":12443/rest/api/uom/Group";
    testing::internal::CaptureStdout();
    const Outcome outcome = send(request);
    std::fflush(stdout);
    const std::string printed = testing::internal::GetCapturedStdout();
    for (const char* const line : {"Starting request\n", "Ignoring SSL\n", "Receiving data\n"}) {
        EXPECT_THAT(printed, testing::HasSubstr(line));
    }
    EXPECT_LT(printed.find("Ignoring SSL"), printed.find("Receiving data"));
    ASSERT_TRUE(outcome.response && outcome.data);
    EXPECT_EQ(outcome.response->statusCode, 401) << "a status is no error";
    EXPECT_NE(*outcome.data, "");
    EXPECT_FALSE(outcome.error);
}

TEST_F(CorvelRequestTest, KeepsTheBodyOfTheLastResponseOnly)
{
    CorvelRequest request;
    const std::string first = "first";
    const std::string second = "second";
    request.didReceiveResponse({"https://a/", 302, {}, -1});
    request.didReceiveData(first);
    request.didReceiveResponse({"https://b/", 200, {}, -1});
    EXPECT_EQ(request.data(), "");
    request.didReceiveData(second);
    request.didReceiveData(second);
    EXPECT_EQ(request.response().url, "https://b/");
    EXPECT_EQ(request.data(), "secondsecond");
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

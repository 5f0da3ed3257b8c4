// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/URLLoading/BodyMemory.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Platform/URLLoading/TransferLimits.h"
#include "Platform/URLLoading/URLConnection.h"
#include "Platform/URLLoading/URLError.h"
#include "Platform/URLLoading/URLLoading.h"
#include "Simulator/SimulatorProcess.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <latch>
#include <memory>
#include <string>
#include <vector>

namespace lodestar::test
{

using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::Le;

/// What comes of a request within a minute.
inline Result<URLLoad> awaited(std::promise<Result<URLLoad>>& outcome)
{
    auto future = outcome.get_future();
    if (future.wait_for(std::chrono::minutes(1)) != std::future_status::ready) {
        return Error{"test", 0, "the request never ended", {}, nullptr};
    }
    return future.get();
}

inline URLRequest requestTo(std::string url)
{
    URLRequest request;
    request.url = std::move(url);
    return request;
}

inline URLRequest consoleRequest(const std::string& address, const std::string& path)
{
    return requestTo("https://" + address + ":12443" + path);
}

/// Collects what a connection tells, and answers challenges as it is told to.
class RecordingDelegate : public URLConnectionDelegate
{
public:
    enum class Answer { Accept, Decline, None };

    explicit RecordingDelegate(Answer answer) : m_answer(answer) {}

    void willSendRequestForAuthenticationChallenge(AuthenticationChallenge& challenge) override
    {
        ++challenges;
        EXPECT_EQ(challenge.authenticationMethod(), AuthenticationChallenge::Method::ServerTrust);
        challengedHost = challenge.host() + ":" + std::to_string(challenge.port());
        if (m_answer == Answer::Accept) {
            challenge.useCredential();
        } else if (m_answer == Answer::Decline) {
            challenge.continueWithoutCredential();
        }
    }
    void didReceiveResponse(const URLResponse& response) override
    {
        ++responses;
        load.response = response;
        load.body.clear();
    }
    void didReceiveData(std::span<const char> data) override { appendToBody(load.body, data); }
    void connectionDidFinishLoading() override { end(load); }
    void didFailWithError(const Error& error) override { end(error); }

    Result<URLLoad> outcome() { return awaited(m_outcome); }

    int challenges = 0;
    int responses = 0;
    int ends = 0;
    std::string challengedHost;
    URLLoad load;

private:
    void end(Result<URLLoad> result)
    {
        if (++ends == 1) {
            m_outcome.set_value(std::move(result));
        }
    }

    const Answer m_answer;
    std::promise<Result<URLLoad>> m_outcome;
};

class URLLoadingTest : public testing::Test
{
protected:
    using Answer = RecordingDelegate::Answer;

    void SetUp() override
    {
        ServerTrust::shared().forgetAll();
        m_limits = TransferLimits::shared();
    }
    void TearDown() override
    {
        m_queue.waitUntilAllOperationsAreFinished();
        // The network's thread may still read the limits for a transfer that is expected: most tests leave them alone.
        if (TransferLimits::shared() != m_limits) {
            TransferLimits::shared() = m_limits;
        }
        ServerTrust::shared().setRefusalHandler(nullptr);
    }

    Result<URLLoad> loadAsynchronously(const URLRequest& request)
    {
        auto outcome = std::make_shared<std::promise<Result<URLLoad>>>();
        sendAsynchronousRequest(request, m_queue, [outcome](const Result<URLLoad>& load) { outcome->set_value(load); });
        return awaited(*outcome);
    }

    /// One after the other: the asynchronous and the blocking call, and a connection whose delegate accepts.
    std::vector<Result<URLLoad>> loadEveryWay(const URLRequest& request)
    {
        return {loadAsynchronously(request), sendSynchronousRequest(request), connect(request)->outcome()};
    }

    static bool isOK(const Result<URLLoad>& load) { return load && load.value().response.statusCode == 200; }

    /// Sends all requests at once; returns how many answers are good.
    std::ptrdiff_t loadTogether(const std::vector<URLRequest>& requests,
                                const std::function<bool(const Result<URLLoad>&)>& isGood = &isOK)
    {
        std::latch settled(std::ssize(requests));
        std::atomic<std::ptrdiff_t> good = 0;
        for (const URLRequest& request : requests) {
            sendAsynchronousRequest(request, m_queue, [&](const Result<URLLoad>& load) {
                good += isGood(load) ? 1 : 0;
                settled.count_down();
            });
        }
        settled.wait();
        return good;
    }

    std::shared_ptr<URLConnection> start(const URLRequest& request, const std::shared_ptr<RecordingDelegate>& delegate)
    {
        auto connection = URLConnection::make(request, delegate);
        connection->setDelegateQueue(m_queue);
        connection->start();
        return connection;
    }
    std::shared_ptr<RecordingDelegate> connect(const URLRequest& request, Answer answer = Answer::Accept)
    {
        auto delegate = std::make_shared<RecordingDelegate>(answer);
        start(request, delegate);
        return delegate;
    }

    /// Logs on through a delegate that accepts the console, and returns the session key.
    std::string logOn(simulator::SimulatorProcess& simulator, int console = 0)
    {
        URLRequest request = consoleRequest(simulator.address(console), "/rest/api/web/Logon");
        request.method = "PUT";
        request.body = "<LogonRequest><UserID>" + simulator.user() + "</UserID><Password>" + simulator.password() +
                       "</Password></LogonRequest>";
        const Result<URLLoad> load = connect(request)->outcome();
        if (!load || load.value().response.statusCode != 200) {
            ADD_FAILURE() << "no logon";
            return {};
        }
        const std::string& body = load.value().body;
        const std::size_t start = body.find('>', body.find("<X-API-Session")) + 1;
        return body.substr(start, body.find('<', start) - start);
    }

    static URLRequest feedRequest(simulator::SimulatorProcess& simulator, const std::string& key, int console = 0,
                                  Urgency urgency = Urgency::Person)
    {
        URLRequest request = consoleRequest(simulator.address(console), "/rest/api/uom/ManagedSystem");
        request.headers.setValue("X-API-Session", key);
        request.urgency = urgency;
        return request;
    }

    /// Six requests of a refresh to each console, which has been logged on to while so many were expected.
    std::vector<URLRequest> fleetRequests(simulator::SimulatorProcess& simulator, int expected = 0)
    {
        std::vector<URLRequest> requests;
        for (int i = 0; i < simulator.consoleCount(); ++i) {
            const auto ahead = expectRequests("https://" + simulator.address(i) + ":12443/", expected);
            requests.insert(requests.end(), 6, feedRequest(simulator, logOn(simulator, i), i, Urgency::Fleet));
        }
        return requests;
    }

    static URLErrorCode codeOf(const Result<URLLoad>& load)
    {
        EXPECT_FALSE(load.ok());
        if (load.ok() || load.error().domain != urlErrorDomain || load.error().localizedDescription.empty()) {
            return URLErrorCode::Unknown;
        }
        return static_cast<URLErrorCode>(load.error().code);
    }

    OperationQueue m_queue;

private:
    TransferLimits m_limits;
};

} // namespace lodestar::test

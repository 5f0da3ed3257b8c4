// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportSender.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"
#include "Tests/Support/ScriptedServer.h"

#include <gmock/gmock.h>
#include <openssl/pem.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace lodestar
{

namespace
{

/// A certificate for which the system's authorities vouch: they are read once a process.
class ReportSenderTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        folder = std::make_unique<ScratchFolder>();
        const std::string authorities = folder->file("authorities.pem");
        service = std::make_unique<simulator::SimulatorProcess>(simulator::Settings{.receiver = authorities});
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(authorities.c_str(), "a"), std::fclose);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(PEM_write_X509(file.get(), vouched->certificate.get()), 1); // behind the service's own
        setenv("SSL_CERT_FILE", authorities.c_str(), 1);
    }
    static void TearDownTestSuite()
    {
        service.reset();
        folder.reset();
    }
    static test::ScriptedServer::LeafRef makeLeaf()
    {
        return simulator::makeLeaf("127.0.0.1", simulator::Leaf::Kind::Valid);
    }

    static inline const test::ScriptedServer::LeafRef vouched = makeLeaf();
    static inline std::unique_ptr<ScratchFolder> folder;
    static inline std::unique_ptr<simulator::SimulatorProcess> service;
};

Result<void> send(const std::string& address)
{
    ReportBundle bundle;
    bundle.note = "a note";
    const OperationQueue queue;
    std::promise<Result<void>> outcome;
    sendReport(bundle, address, queue, [&outcome](Result<void> sent) { outcome.set_value(std::move(sent)); });
    return outcome.get_future().get();
}

Result<void> sendTo(const std::string& answer, const test::ScriptedServer::LeafRef& leaf)
{
    const test::ScriptedServer server(answer, test::ScriptedServer::Ending::Notice, "127.0.0.1", leaf);
    return send(server.url() + "reports");
}

} // namespace

TEST_F(ReportSenderTest, OnlyAVouchedServersGoodAnswerOverTlsCountsAsSent)
{
    const std::string good = "HTTP/1.1 201 Created\r\nContent-Length: 0\r\n\r\n";
    EXPECT_TRUE(sendTo(good, vouched).ok());
    EXPECT_FALSE(sendTo(good, makeLeaf()).ok());
    const Result<void> refused = sendTo("HTTP/1.1 507 Full\r\nContent-Length: 0\r\n\r\n", vouched);
    ASSERT_FALSE(refused.ok());
    EXPECT_THAT(refused.error().localizedDescription, testing::HasSubstr("507"));
    for (const std::string address : {"", "http://127.0.0.1/", "https", "ftp://127.0.0.1/"}) {
        EXPECT_FALSE(send(address).ok()) << address;
    }
    EXPECT_EQ(feedbackAddress(), "") << "no build sends anything unless it is told where to";
}

TEST_F(ReportSenderTest, TheServiceKnowsTheSessionAndHowMuchHasGoneIsTold)
{
    const OperationQueue queue;
    const std::string& address = service->receiver();
    std::promise<bool> started;
    startFeedbackSession("k\"ey", 2, address, queue, [&](const auto& outcome) { started.set_value(outcome.ok()); });
    EXPECT_TRUE(started.get_future().get());

    ReportBundle bundle;
    bundle.picture = std::string(std::size_t{3} << 20, '\x55');
    std::promise<bool> sent;
    std::vector<int> told;
    sendReport(
        bundle, address, queue, [&](const Result<void>& outcome) { sent.set_value(outcome.ok()); },
        [&](int percent) { told.push_back(percent); });
    EXPECT_TRUE(sent.get_future().get());
    EXPECT_GT(told.size(), 5U);
    EXPECT_EQ(std::adjacent_find(told.begin(), told.end(), std::greater_equal()), told.end()) << "once a percent";
    EXPECT_EQ(told.back(), 100);
    const std::string& session = feedbackSessionIdentifier();
    EXPECT_THAT(service->reports(),
                testing::ElementsAre(R"(session {"key":"k\u0022ey","session":")" + session + R"(","mode":2})",
                                     testing::AllOf(testing::StartsWith("report 1, 3"),
                                                    testing::EndsWith(" bytes, sent in session " + session))));
}

} // namespace lodestar

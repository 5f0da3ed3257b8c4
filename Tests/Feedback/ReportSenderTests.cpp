// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportSender.h"
#include "Simulator/SimulatorProcess.h"
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

/// A certificate for which the system's authorities vouch: they are read once a process, hence the environment.
class VouchedLeaf : public testing::Environment
{
public:
    void SetUp() override
    {
        simulator::Settings settings;
        settings.receiver = m_path;
        service.start(settings); // writes its own certificate there
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(m_path.c_str(), "a"), std::fclose);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(PEM_write_X509(file.get(), leaf->certificate.get()), 1);
        setenv("SSL_CERT_FILE", m_path.c_str(), 1);
    }
    void TearDown() override
    {
        service.stop();
        std::remove(m_path.c_str());
    }

    const test::ScriptedServer::LeafRef leaf = simulator::makeLeaf("127.0.0.1", simulator::Leaf::Kind::Valid);
    simulator::SimulatorProcess service;

private:
    const std::string m_path = testing::TempDir() + "lodestar-authorities-" + std::to_string(getpid()) + ".pem";
};

VouchedLeaf& vouched()
{
    static auto* const leaf = new VouchedLeaf;
    return *leaf;
}

const testing::Environment* const registered = testing::AddGlobalTestEnvironment(&vouched());

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

TEST(ReportSenderTest, OnlyAVouchedServersGoodAnswerOverTlsCountsAsSent)
{
    const std::string good = "HTTP/1.1 201 Created\r\nContent-Length: 0\r\n\r\n";
    EXPECT_TRUE(sendTo(good, vouched().leaf).ok());
    EXPECT_FALSE(sendTo(good, simulator::makeLeaf("127.0.0.1", simulator::Leaf::Kind::Valid)).ok());
    const Result<void> refused = sendTo("HTTP/1.1 507 Full\r\nContent-Length: 0\r\n\r\n", vouched().leaf);
    ASSERT_FALSE(refused.ok());
    EXPECT_THAT(refused.error().localizedDescription, testing::HasSubstr("507"));
    for (const std::string address : {"", "http://127.0.0.1/", "https", "ftp://127.0.0.1/"}) {
        EXPECT_FALSE(send(address).ok()) << address;
    }
    EXPECT_EQ(feedbackAddress(), "") << "no build sends anything unless it is told where to";
}

TEST(ReportSenderTest, TheServiceKnowsTheSessionAndHowMuchHasGoneIsTold)
{
    const OperationQueue queue;
    const std::string& address = vouched().service.receiver();
    std::promise<bool> started;
    startFeedbackSession("k\"ey", 2, address, queue,
                         [&](const Result<void>& outcome) { started.set_value(outcome.ok()); });
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
    EXPECT_THAT(vouched().service.reports(),
                testing::ElementsAre(R"(session {"key":"k\u0022ey","session":")" + session + R"(","mode":2})",
                                     testing::AllOf(testing::StartsWith("report 1, 3"),
                                                    testing::EndsWith(" bytes, sent in session " + session))));
}

} // namespace lodestar

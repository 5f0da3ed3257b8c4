// SPDX-License-Identifier: Apache-2.0
#include "Tests/Platform/URLLoadingFixture.h"
#include "Tests/Support/ScratchFolder.h"
#include "Tests/Support/ScriptedServer.h"

#include <openssl/pem.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <mutex>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace lodestar::test
{

namespace
{

/// Two certificates for which the system's authorities vouch, one of them expired. The authorities are read once a
/// process, hence the environment.
class VouchedLeaves : public testing::Environment
{
public:
    void SetUp() override
    {
        const std::string path = m_folder.file("authorities.pem");
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "w"), std::fclose);
        ASSERT_NE(file, nullptr);
        ASSERT_EQ(PEM_write_X509(file.get(), valid->certificate.get()), 1);
        ASSERT_EQ(PEM_write_X509(file.get(), expired->certificate.get()), 1);
        setenv("SSL_CERT_FILE", path.c_str(), 1);
    }

    const ScriptedServer::LeafRef valid = simulator::makeLeaf("127.0.0.1", simulator::Leaf::Kind::Valid);
    const ScriptedServer::LeafRef expired = simulator::makeLeaf("127.0.0.2", simulator::Leaf::Kind::Expired);

private:
    const ScratchFolder m_folder;
};

VouchedLeaves& vouched()
{
    static auto* const leaves = new VouchedLeaves;
    return *leaves;
}

const testing::Environment* const registered = testing::AddGlobalTestEnvironment(&vouched());

} // namespace

class URLTrustTest : public URLLoadingTest
{
protected:
    void SetUp() override
    {
        URLLoadingTest::SetUp();
        ServerTrust::shared().setRefusalHandler([this](const std::string& host, int port, const std::string& reason) {
            const std::lock_guard lock(m_mutex);
            m_refusals.push_back(host + ":" + std::to_string(port) + " " + reason);
        });
    }
    std::vector<std::string> refusals()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_refusals, {});
    }

private:
    std::mutex m_mutex;
    std::vector<std::string> m_refusals;
};

TEST_F(URLTrustTest, PlainRequestSendsNothingToAServerNobodyVouchesFor)
{
    simulator::SimulatorProcess simulator{{}};
    const URLRequest request = feedRequest(simulator, "secret");
    EXPECT_EQ(codeOf(loadAsynchronously(request)), URLErrorCode::ServerCertificateUntrusted);
    EXPECT_EQ(codeOf(sendSynchronousRequest(request)), URLErrorCode::ServerCertificateUntrusted);
    EXPECT_THAT(refusals(),
                ElementsAre(HasSubstr(simulator.address() + ":12443 self-signed"), HasSubstr("self-signed")));
    EXPECT_THAT(simulator.requests(), IsEmpty());

    // A delegate that does not accept the server leaves it as unknown as it was.
    for (const Answer answer : {Answer::Decline, Answer::None}) {
        const auto delegate = connect(consoleRequest(simulator.address(), "/"), answer);
        EXPECT_EQ(codeOf(delegate->outcome()), URLErrorCode::ServerCertificateUntrusted);
        m_queue.waitUntilAllOperationsAreFinished();
        EXPECT_EQ(delegate->challenges, 1);
        EXPECT_EQ(delegate->responses, 0);
        EXPECT_EQ(delegate->ends, 1);
        EXPECT_EQ(ServerTrust::shared().remembered(simulator.address(), 12443), std::nullopt);
    }
}

TEST_F(URLTrustTest, SystemsWordCountsUnlessTheCertificateIsStaleOrNamesAnother)
{
    using Way = std::function<Result<URLLoad>(const URLRequest&)>;
    const auto load = [](const Way& way, const std::string& address, const auto& leaf, const std::string& name) {
        const ScriptedServer server("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nOK", ScriptedServer::Ending::Notice,
                                    address, leaf);
        return way(requestTo(server.urlFor(name)));
    };
    const Way plain = [this](const URLRequest& request) { return loadAsynchronously(request); };
    const Way declining = [this](const URLRequest& request) { return connect(request, Answer::Decline)->outcome(); };
    for (const Way& way : {plain, Way(&sendSynchronousRequest), declining}) {
        EXPECT_TRUE(load(way, "127.0.0.1", vouched().valid, "127.0.0.1").ok());
    }
    EXPECT_THAT(refusals(), IsEmpty());
    EXPECT_EQ(codeOf(load(plain, "127.0.0.1", vouched().valid, "localhost")), URLErrorCode::ServerCertificateUntrusted);
    EXPECT_EQ(codeOf(load(plain, "127.0.0.2", vouched().expired, "127.0.0.2")),
              URLErrorCode::ServerCertificateUntrusted);
    EXPECT_THAT(refusals(), ElementsAre(HasSubstr("hostname"), HasSubstr("expired")));
}

TEST_F(URLTrustTest, AcceptedCertificateIsGoodForPlainRequestsToThatServerAlone)
{
    simulator::SimulatorProcess simulator({.consoles = 2});
    const URLRequest request = consoleRequest(simulator.address(), "/");
    const auto first = connect(request);
    EXPECT_TRUE(first->outcome().ok());
    EXPECT_EQ(first->challenges, 1);
    EXPECT_EQ(first->challengedHost, simulator.address() + ":12443");
    const auto again = connect(request);
    EXPECT_TRUE(again->outcome().ok());
    EXPECT_EQ(again->challenges, 0) << "the connection was kept, so there was no handshake to ask about";

    const std::string key = logOn(simulator);
    EXPECT_TRUE(loadAsynchronously(feedRequest(simulator, key)).ok());
    EXPECT_TRUE(sendSynchronousRequest(feedRequest(simulator, key)).ok());
    EXPECT_EQ(codeOf(loadAsynchronously(feedRequest(simulator, key, 1))), URLErrorCode::ServerCertificateUntrusted);
    EXPECT_THAT(refusals(), SizeIs(1));
}

TEST_F(URLTrustTest, SwappedCertificateIsRefusedUntilADelegateHasMetIt)
{
    for (const std::string fault : {"swapCertificate", "expiredCertificate", "misnamedCertificate"}) {
        SCOPED_TRACE(fault);
        simulator::SimulatorProcess simulator{{}};
        const URLRequest request = feedRequest(simulator, logOn(simulator));
        EXPECT_TRUE(loadAsynchronously(request).ok());
        EXPECT_TRUE(sendSynchronousRequest(request).ok());
        simulator.setFault(fault);
        EXPECT_EQ(codeOf(loadAsynchronously(request)), URLErrorCode::ServerCertificateUntrusted);
        EXPECT_EQ(codeOf(sendSynchronousRequest(request)), URLErrorCode::ServerCertificateUntrusted);
        EXPECT_THAT(refusals(), SizeIs(2));
        EXPECT_TRUE(connect(request)->outcome().ok());
        EXPECT_TRUE(loadAsynchronously(request).ok());
        EXPECT_TRUE(sendSynchronousRequest(request).ok());
    }
}

TEST_F(URLTrustTest, KeptConnectionDoesNotHideAnotherCertificate)
{
    // The connections stand, as behind a balancer; what the client remembers has changed in the meantime.
    simulator::SimulatorProcess simulator{{}};
    const URLRequest request = feedRequest(simulator, logOn(simulator));
    const auto real = ServerTrust::shared().remembered(simulator.address(), 12443);
    ASSERT_TRUE(real);
    ServerTrust::Fingerprint other = *real;
    other[0] ^= 1U;
    ServerTrust::shared().remember(simulator.address(), 12443, other);
    EXPECT_EQ(codeOf(loadAsynchronously(request)), URLErrorCode::ServerCertificateUntrusted);
    EXPECT_EQ(simulator.handshakes(), 2U) << "the kept connection is left for a fresh one before the server is refused";

    const auto delegate = connect(request);
    EXPECT_TRUE(delegate->outcome().ok());
    EXPECT_EQ(delegate->challenges, 1);
    EXPECT_EQ(simulator.handshakes(), 3U) << "after a refusal the delegate meets a new connection";
    EXPECT_EQ(ServerTrust::shared().remembered(simulator.address(), 12443), real);
    EXPECT_TRUE(loadAsynchronously(request).ok());
    EXPECT_THAT(refusals(), SizeIs(1));
}

} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
#include "Simulator/SimulatorProcess.h"
#include "Tests/Simulator/TlsClient.h"
#include "Tests/Simulator/XmlTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

namespace lodestar::simulator::test
{
namespace
{

using testing::HasSubstr;

const std::string groups = "/rest/api/uom/Group";
const std::string systems = "/rest/api/uom/ManagedSystem";

/// Two consoles with feeds of 100 KB, one logged on to.
class SimulatorFaults : public testing::Test
{
protected:
    SimulatorFaults()
    {
        Settings settings;
        settings.consoles = 2;
        settings.feedBytes = 100000;
        simulator.start(settings);
        key = logon(simulator);
        whole = fetch().body;
    }

    Answer fetch(const std::string& path = groups, std::string_view more = {})
    {
        return get(simulator.address(), path, key, more);
    }

    Answer tryLogon()
    {
        TlsClient client(simulator.address());
        client.send(logonRequest(simulator.user(), simulator.password()));
        return client.receive();
    }

    std::uint64_t declaredSize(const Answer& answer) { return std::stoull(answer.header("Content-Length")); }

    SimulatorProcess simulator;
    std::string key;
    std::string whole;
};

TEST_F(SimulatorFaults, Logons)
{
    simulator.setFault("refuseLogon");
    EXPECT_EQ(tryLogon().status, 401);
    EXPECT_EQ(fetch().status, 200) << "a session lives on";
    simulator.clearFault("refuseLogon");
    simulator.setFault("logonWithoutKey:0");
    Answer answer = tryLogon();
    EXPECT_EQ(answer.status, 200);
    EXPECT_TRUE(XmlTree(answer.body).wellFormed());
    EXPECT_EQ(keyIn(answer), "");
    EXPECT_NE(logon(simulator, 1), "") << "the other console is well";
    simulator.clearFaults();
    for (const auto& [fault, text] :
         {std::pair("logonNotXML", "<html>"), std::pair("logonNotXML:empty", ""), std::pair("logonNotXML:json", "{")}) {
        simulator.setFault(fault);
        answer = tryLogon();
        EXPECT_EQ(answer.status, 200);
        EXPECT_THAT(answer.body, HasSubstr(text));
        EXPECT_FALSE(XmlTree(answer.body).wellFormed()) << fault;
        simulator.clearFaults();
    }
    EXPECT_NE(keyIn(tryLogon()), "");
}

TEST_F(SimulatorFaults, SingleFeedsAndTheSessionCheck)
{
    simulator.setFault("refuseFeed:Group");
    simulator.setFault("emptyFeed:ManagedSystem");
    simulator.setFault("refuseFeed:ManagementConsole");
    EXPECT_EQ(fetch().status, 500);
    Answer answer = fetch(systems);
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.body, "");
    EXPECT_EQ(answer.end, End::Whole);
    const std::string console = "/rest/api/uom/ManagementConsole";
    const std::string check = "Accept: application/atom+xml, application/vnd.ornis.varnex.uom+xml\r\n";
    EXPECT_EQ(fetch(console, "Accept: application/atom+xml\r\n").status, 500);
    EXPECT_EQ(fetch(console, check).status, 200);
    simulator.setFault("refuseFeed:SessionCheck");
    EXPECT_EQ(fetch(console, check).status, 500);
    simulator.clearFaults();
    EXPECT_EQ(fetch().body, whole);
}

TEST_F(SimulatorFaults, Silence)
{
    simulator.setFault("stallFeed:Group");
    TlsClient stalled(simulator.address(), 300);
    stalled.send(getRequest(groups, key));
    EXPECT_EQ(stalled.receive().status, 0);
    EXPECT_EQ(fetch(systems).status, 200) << "while the other waits";
    simulator.clearFaults();
    simulator.setFault("silentAfterAccept");
    TlsClient silent(simulator.address(), 300, TlsClient::Step::Connect);
    EXPECT_TRUE(silent.connected());
    EXPECT_FALSE(silent.handshake());
    simulator.clearFaults();
    EXPECT_EQ(fetch().body, whole);
}

TEST_F(SimulatorFaults, OneByteASecond)
{
    simulator.setFault("trickle");
    TlsClient client(simulator.address(), 1800);
    client.send(getRequest(groups, key));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(client.receiveBytes(3), "HTT");
    const auto time = std::chrono::steady_clock::now() - start;
    EXPECT_GE(time, std::chrono::milliseconds(1990));
    EXPECT_LT(time, std::chrono::milliseconds(8000));
}

TEST_F(SimulatorFaults, CutsAndResets)
{
    simulator.setFault("cutBody");
    Answer answer = fetch(groups, "Accept-Encoding: gzip\r\n");
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.end, End::Closed);
    EXPECT_EQ(declaredSize(answer), whole.size());
    EXPECT_EQ(answer.body, whole.substr(0, whole.size() / 2));
    simulator.clearFaults();

    simulator.setFault("reset");
    answer = fetch();
    EXPECT_EQ(answer.end, End::Reset);
    EXPECT_LT(answer.body.size(), whole.size());
    simulator.clearFaults();

    simulator.setFault("cutChunk");
    answer = fetch();
    EXPECT_EQ(answer.header("Transfer-Encoding"), "chunked");
    EXPECT_EQ(answer.end, End::Closed);
    const std::size_t lastSize = answer.body.rfind("\r\n2000\r\n");
    ASSERT_NE(lastSize, std::string::npos);
    EXPECT_LT(answer.body.size() - lastSize, 8192U) << "the last chunk is open";
    simulator.setFeed(0, "Group", "<feed/>");
    EXPECT_EQ(fetch().body, "7\r\n<fe") << "a small feed is cut as well";
    simulator.resetFeed(0, "Group");
    simulator.clearFaults();

    simulator.setFault("cutGzip");
    answer = fetch();
    EXPECT_EQ(answer.end, End::Whole);
    EXPECT_EQ(answer.header("Content-Encoding"), "gzip");
    EXPECT_EQ(answer.body.substr(0, 2), "\x1f\x8b");
    EXPECT_EQ(gunzipped(answer.body), "");
    simulator.clearFaults();

    simulator.setFault("chunked");
    answer = fetch();
    EXPECT_EQ(answer.end, End::Whole);
    EXPECT_GT(answer.body.size(), whole.size());
}

TEST_F(SimulatorFaults, DamagedXmlKeepsMostEntries)
{
    simulator.setFault("malformedFeed:Group");
    const Answer answer = fetch(groups, "Accept-Encoding: gzip\r\n");
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.end, End::Whole);
    EXPECT_FALSE(XmlTree(answer.body).wellFormed());
    EXPECT_EQ(answer.body.substr(0, 40000), whole.substr(0, 40000));
    EXPECT_THAT(answer.body, HasSubstr("&nothing;"));
}

TEST_F(SimulatorFaults, FloodsAreAsLargeAsTheySay)
{
    simulator.setFault("hugeBody");
    TlsClient huge(simulator.address());
    huge.send(getRequest(groups, key));
    Answer answer = huge.receive(20U << 20U);
    EXPECT_GE(declaredSize(answer), 1U << 30U);
    EXPECT_GE(answer.body.size(), 20U << 20U);
    simulator.clearFaults();

    simulator.setFault("gzipBomb");
    answer = fetch();
    EXPECT_EQ(answer.end, End::Whole);
    EXPECT_EQ(answer.header("Content-Encoding"), "gzip");
    EXPECT_LT(answer.body.size(), 8U << 20U);
    // The stream's own last word on how long it is unpacked.
    EXPECT_EQ(answer.body.substr(answer.body.size() - 4), std::string("\0\0\0\x40", 4));
    simulator.clearFaults();

    simulator.setFault("hugeHeaders");
    answer = fetch();
    std::size_t headerBytes = 0;
    for (const std::string& line : answer.headers) {
        EXPECT_LT(line.size(), 2000U);
        headerBytes += line.size() + 2;
    }
    EXPECT_GE(headerBytes, 16U << 20U);
    EXPECT_EQ(answer.body, whole);
}

TEST_F(SimulatorFaults, RedirectsAndChallenges)
{
    simulator.setFault("redirectLoop:Group");
    Answer answer = fetch();
    EXPECT_EQ(answer.status, 307);
    const std::string origin = "https://" + simulator.address(0) + ":12443";
    EXPECT_EQ(answer.header("Location"), origin + groups + "?hop=1");
    EXPECT_EQ(fetch(groups + "?hop=19").header("Location"), origin + groups + "?hop=20");
    simulator.clearFaults();
    simulator.setFault("redirectOtherHost:Group");
    EXPECT_EQ(fetch().header("Location"), "https://" + simulator.address(1) + ":12443" + groups);
    simulator.clearFaults();
    simulator.setFault("basicAuth");
    answer = tryLogon();
    EXPECT_EQ(answer.status, 401);
    EXPECT_THAT(answer.header("WWW-Authenticate"), HasSubstr("Basic"));
    EXPECT_EQ(fetch().status, 401);
}

TEST_F(SimulatorFaults, Certificates)
{
    const std::string address = simulator.address();
    TlsClient old(address);
    EXPECT_TRUE(old.certificateNames(address));
    EXPECT_FALSE(old.certificateExpired());
    simulator.setFault("swapCertificate:0");
    old.send(getRequest(groups, key));
    EXPECT_EQ(old.receive().status, 0) << "the old connection is closed";
    TlsClient swapped(address);
    EXPECT_NE(swapped.fingerprint(), old.fingerprint());
    EXPECT_EQ(swapped.fingerprint(), simulator.certificateFingerprint());
    swapped.send(getRequest(groups, key));
    EXPECT_EQ(swapped.receive().body, whole) << "the session lives on";

    simulator.setFault("expiredCertificate");
    EXPECT_TRUE(TlsClient(address).certificateExpired());
    simulator.clearFaults();
    simulator.setFault("misnamedCertificate:0");
    EXPECT_FALSE(TlsClient(address).certificateNames(address));
    simulator.clearFaults();
    EXPECT_TRUE(TlsClient(address).certificateNames(address));
    EXPECT_FALSE(TlsClient(address).certificateExpired());
}

TEST_F(SimulatorFaults, ConsolesGoAndComeBack)
{
    TlsClient held(simulator.address());
    simulator.setFault("closePort:0");
    EXPECT_FALSE(TlsClient(simulator.address(0)).connected());
    EXPECT_TRUE(TlsClient(simulator.address(1)).handshaken());
    held.send(getRequest(groups, key));
    EXPECT_EQ(held.receive().status, 0);
    simulator.clearFault("closePort:0");
    EXPECT_EQ(fetch().body, whole);
    simulator.stopConsole(1);
    simulator.stopConsole(1);
    EXPECT_FALSE(TlsClient(simulator.address(1)).connected());
    simulator.startConsole(1);
    simulator.startConsole(1);
    EXPECT_TRUE(TlsClient(simulator.address(1)).handshaken());
}

} // namespace
} // namespace lodestar::simulator::test

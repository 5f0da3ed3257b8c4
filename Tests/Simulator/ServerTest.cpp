// SPDX-License-Identifier: Apache-2.0
#include "Simulator/SimulatorProcess.h"
#include "Tests/Simulator/TlsClient.h"
#include "Tests/Simulator/XmlTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <stdexcept>

namespace lodestar::simulator::test
{
namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

Settings twoConsoles()
{
    Settings settings;
    settings.consoles = 2;
    return settings;
}

TEST(SimulatorServer, LogonWantsTheCredentialsAsTheyStand)
{
    Settings settings;
    settings.user = "a b";
    settings.password = "x&y<z";
    SimulatorProcess simulator(settings);
    const auto statusOf = [&](const std::string& request) {
        TlsClient client(simulator.address());
        client.send(request);
        return client.receive().status;
    };
    EXPECT_EQ(statusOf(logonRequest("a b", "x&y<z")), 200);
    EXPECT_EQ(statusOf(logonRequest("a b", "x&amp;y&lt;z")), 401);
    EXPECT_EQ(statusOf(logonRequest("a b", "x&y<zz")), 401);
    EXPECT_EQ(statusOf(logonRequest("a", "x&y<z")), 401);
    const std::string key = logon(simulator);
    EXPECT_GT(key.size(), 20U);
    EXPECT_NE(key, logon(simulator));
}

TEST(SimulatorServer, NothingIsReadWithoutTheConsolesOwnSession)
{
    SimulatorProcess simulator(twoConsoles());
    const std::string key = logon(simulator, 0);
    const std::string path = "/rest/api/uom/ManagedSystem";
    EXPECT_EQ(get(simulator.address(0), path, key).status, 200);
    EXPECT_EQ(get(simulator.address(0), path, "").status, 401);
    EXPECT_EQ(get(simulator.address(0), path, key + "x").status, 403);
    EXPECT_EQ(get(simulator.address(1), path, key).status, 403);
    EXPECT_EQ(get(simulator.address(0), "/rest/api/uom/ServiceableEvent", key).status, 404);
    EXPECT_EQ(get(simulator.address(0), "/rest/api/pcm/ManagedSystem/x/ProcessedMetrics", key).status, 404);
    simulator.setFault("expireSession:0");
    EXPECT_EQ(get(simulator.address(0), path, key).status, 403);
    EXPECT_EQ(get(simulator.address(0), path, logon(simulator, 0)).status, 200);
}

TEST(SimulatorServer, FeedsLeadToSingleValues)
{
    SimulatorProcess simulator(twoConsoles());
    const std::string key = logon(simulator, 1);
    const std::string address = simulator.address(1);
    const Answer feed = get(address, "/rest/api/uom/LogicalPartition", key);
    EXPECT_THAT(feed.header("Content-Type"), HasSubstr("application/atom+xml"));
    const XmlTree partitions(feed.body);
    const XmlTree systems(get(address, "/rest/api/uom/ManagedSystem", key).body);
    const auto names = systems.texts({"entry", "content", "ManagedSystem", "SystemName"});
    xmlNode* last = partitions.all({"entry", "content", "LogicalPartition"}).back();
    const std::string prefix = "https://" + address + ":12443";
    const std::string system = XmlTree::attribute(XmlTree::all(last, {"AssociatedManagedSystem"}).at(0), "href");
    const std::string self = XmlTree::attribute(partitions.all({"entry", "link"}).back(), "href");
    ASSERT_EQ(system.find(prefix), 0U);
    ASSERT_EQ(self.find(prefix), 0U);
    const auto quick = [&](const std::string& link, const char* property) {
        return get(address, link.substr(prefix.size()) + "/quick/" + property, key).body;
    };
    EXPECT_EQ(quick(system, "SystemName"), "\"" + names.back() + "\"");
    EXPECT_EQ(quick(self, "PartitionState"), "\"" + XmlTree::text(XmlTree::all(last, {"PartitionState"}).at(0)) + "\"");
    EXPECT_THAT(quick(self, "Nothing"), HasSubstr("404"));
    EXPECT_EQ(simulator.summary(1).systems, static_cast<int>(names.size()));
}

TEST(SimulatorServer, EveryByteOfARequestIsRecorded)
{
    SimulatorProcess simulator(twoConsoles());
    TlsClient client(simulator.address(1));
    const std::string body("<a>&\xC3\xA9\0%\r\n</a>", 14);
    client.send("PUT /rest/api/web/Logon?x=%20y HTTP/1.1\r\nHost: h\r\naccept:  b\r\nAccept: a\r\nContent-Length: " +
                std::to_string(body.size()) + "\r\n\r\n" + body);
    EXPECT_EQ(client.receive().status, 401);
    const auto requests = simulator.requests(1);
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].method, "PUT");
    EXPECT_EQ(requests[0].path, "/rest/api/web/Logon?x=%20y");
    EXPECT_THAT(requests[0].headers, ElementsAre("Host: h", "accept:  b", "Accept: a", "Content-Length: 14"));
    EXPECT_EQ(requests[0].body, body);
    EXPECT_TRUE(simulator.requests(0).empty());
    simulator.clearRequests();
    EXPECT_TRUE(simulator.requests().empty());
}

TEST(SimulatorServer, ConnectionsArePersistentAndCounted)
{
    Settings settings = twoConsoles();
    settings.recordCap = 3;
    SimulatorProcess simulator(settings);
    TlsClient client(simulator.address());
    // Split in the middle of a line, then three requests at once.
    const std::string logonBytes = logonRequest(simulator.user(), simulator.password());
    client.send(logonBytes.substr(0, 30));
    client.send(logonBytes.substr(30));
    const std::string key = keyIn(client.receive());
    const std::string one = getRequest("/rest/api/uom/Group", key);
    client.send(one + getRequest("/rest/api/sem/ServiceableEvent", key) + one);
    const Answer first = client.receive();
    EXPECT_THAT(client.receive().body, HasSubstr("problemNumber"));
    EXPECT_EQ(client.receive().body, first.body);
    client.send(getRequest("/rest/api/uom/Group", key, "Connection: close\r\n"));
    EXPECT_EQ(client.receive().header("Connection"), "close");
    client.send(one);
    EXPECT_EQ(client.receive().end, End::Closed);
    get(simulator.address(), "/", "");

    const auto requests = simulator.requests();
    ASSERT_EQ(requests.size(), 3U) << "the oldest are dropped";
    EXPECT_EQ(requests[0].connection, requests[1].connection);
    EXPECT_NE(requests[1].connection, requests[2].connection);
    EXPECT_EQ(simulator.handshakes(0), 2U);
    EXPECT_EQ(simulator.handshakes(1), 0U);
    EXPECT_EQ(simulator.statistics().requests, 6U);
}

TEST(SimulatorServer, NetworkTakesItsTimeForConnectionHandshakeAndRequest)
{
    using namespace std::chrono_literals;
    constexpr auto roundTrip = 200ms;
    SimulatorProcess simulator(twoConsoles());
    const std::string key = logon(simulator);
    const auto start = std::chrono::steady_clock::now();
    const auto roundTripsSince = [&] { return (std::chrono::steady_clock::now() - start) / roundTrip; };
    simulator.setRoundTrip(roundTrip.count());
    TlsClient client(simulator.address());
    EXPECT_EQ(roundTripsSince(), 2) << "connection and handshake";
    for (const int expected : {3, 4}) {
        client.send(getRequest("/rest/api/uom/Group", key, expected == 4 ? "Connection: close\r\n" : ""));
        EXPECT_THAT(client.receive().body, HasSubstr("</feed>"));
        EXPECT_EQ(roundTripsSince(), expected);
    }
    EXPECT_EQ(client.receive().end, End::Closed);

    // Where each piece is late, request and answer take two and a half round trips each.
    Settings late = twoConsoles();
    late.roundTrip = 50;
    late.stalls = 100;
    SimulatorProcess slow(late);
    TlsClient patient(slow.address());
    const auto sent = std::chrono::steady_clock::now();
    patient.send(getRequest("/rest/api/uom/Group", "none"));
    EXPECT_EQ(patient.receive().status, 403);
    EXPECT_EQ((std::chrono::steady_clock::now() - sent) / 50ms, 5);
}

TEST(SimulatorServer, CompressesOnlyForThoseWhoAskAndOnlyIfItMay)
{
    Settings settings;
    SimulatorProcess simulator(settings);
    const std::string path = "/rest/api/uom/ManagedSystem";
    std::string key = logon(simulator);
    const Answer plain = get(simulator.address(), path, key);
    const Answer packed = get(simulator.address(), path, key, "Accept-Encoding: deflate, gzip\r\n");
    EXPECT_EQ(plain.header("Content-Encoding"), "");
    EXPECT_EQ(packed.header("Content-Encoding"), "gzip");
    EXPECT_LT(packed.body.size(), plain.body.size() / 2);
    EXPECT_EQ(gunzipped(packed.body), plain.body);
    settings.gzip = false;
    simulator.start(settings);
    key = logon(simulator);
    EXPECT_EQ(get(simulator.address(), path, key, "Accept-Encoding: gzip\r\n").header("Content-Encoding"), "");
}

TEST(SimulatorServer, FeedsCanBeReplacedAndAnswersDelayed)
{
    SimulatorProcess simulator(twoConsoles());
    const std::string key = logon(simulator);
    const std::string own = get(simulator.address(), "/rest/api/uom/Group", key).body;
    simulator.setFeed(0, "Group", "<feed/>");
    EXPECT_EQ(get(simulator.address(), "/rest/api/uom/Group", key).body, "<feed/>");
    simulator.resetFeed(0, "Group");
    EXPECT_EQ(get(simulator.address(), "/rest/api/uom/Group", key).body, own);
    // Of connections that stand already, too.
    TlsClient client(simulator.address());
    ASSERT_TRUE(client.handshaken());
    simulator.setLatency(150);
    const auto start = std::chrono::steady_clock::now();
    client.send(getRequest("/rest/api/uom/Group", key));
    EXPECT_EQ(client.receive().body, own);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(150));
}

TEST(SimulatorServer, WhatIsNoRequestIsRefused)
{
    SimulatorProcess simulator(twoConsoles());
    for (const char* wrong : {"hello\r\n\r\n", "GET /\r\n\r\n", "GET / HTTP/1.1\r\nContent-Length: x\r\n\r\n",
                              "PUT / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n"}) {
        TlsClient client(simulator.address());
        client.send(wrong);
        EXPECT_EQ(client.receive().status, 400) << wrong;
        EXPECT_EQ(client.receive().end, End::Closed) << wrong;
    }
    TlsClient client(simulator.address());
    client.send("DELETE /rest/api/web/Logon HTTP/1.1\r\n\r\n");
    EXPECT_EQ(client.receive().status, 405);
}

TEST(SimulatorProcessTest, ProcessesStandSideBySideAndEndWithTheirOwner)
{
    SimulatorProcess first(twoConsoles());
    SimulatorProcess second(twoConsoles());
    EXPECT_NE(first.address(0), second.address(0));
    EXPECT_NE(first.address(1), second.address(1));
    Settings taken = twoConsoles();
    taken.address = first.address(1);
    SimulatorProcess third;
    EXPECT_THROW(third.start(taken), std::runtime_error);
    EXPECT_THROW(third.clearFaults(), std::runtime_error);
    EXPECT_THROW(first.setFault("nonsense"), std::runtime_error);
    EXPECT_NO_THROW(first.clearFaults()) << "a refused command harms nothing";

    const pid_t ended = first.pid();
    EXPECT_TRUE(TlsClient(first.address()).handshaken());
    EXPECT_EQ(first.stop(), 0);
    EXPECT_EQ(::kill(ended, 0), -1);
    third.start(taken);
    EXPECT_TRUE(TlsClient(taken.address).handshaken());
    ::kill(third.pid(), SIGKILL);
    EXPECT_THROW(third.requests(), std::runtime_error);
    EXPECT_EQ(third.stop(), -SIGKILL);
}

TEST(SimulatorProcessTest, AThousandConsolesAnswerEachForItself)
{
    Settings settings;
    settings.consoles = 1000;
    SimulatorProcess simulator(settings);
    ASSERT_EQ(simulator.consoleCount(), 1000);
    TlsClient client(simulator.address(999));
    client.send(logonRequest(simulator.user(), simulator.password()));
    client.send(getRequest("/rest/api/uom/ManagementConsole", keyIn(client.receive())));
    EXPECT_THAT(client.receive().body, HasSubstr("https://" + simulator.address(999) + ":12443/"));
    EXPECT_TRUE(client.certificateNames(simulator.address(999)));
    EXPECT_EQ(client.fingerprint(), simulator.certificateFingerprint(999));
    EXPECT_NE(client.fingerprint(), simulator.certificateFingerprint(998));
}

} // namespace
} // namespace lodestar::simulator::test

// SPDX-License-Identifier: Apache-2.0
// Many transfers at once, and the connections that they share.
#include "Platform/URLLoading/HandshakeHold.h"
#include "Tests/Platform/URLLoadingFixture.h"
#include "Tests/Support/ScratchFolder.h"

#include <algorithm>
#include <atomic>
#include <latch>
#include <sys/resource.h>
#include <thread>

namespace lodestar::test
{

using namespace std::chrono_literals;

TEST_F(URLLoadingTest, CancelledConnectionsEndOnceWhenever)
{
    simulator::SimulatorProcess simulator{{}};
    const std::string key = logOn(simulator);
    simulator.setFault("stallFeed:All");
    constexpr int count = 120;
    std::vector<std::shared_ptr<URLConnection>> connections;
    std::vector<std::shared_ptr<RecordingDelegate>> delegates;
    for (int i = 0; i < count; ++i) {
        // A third never answers, a third answers at once, and a third is cancelled while it still waits for its turn.
        const bool answers = i % 3 == 1;
        delegates.push_back(std::make_shared<RecordingDelegate>(Answer::Accept));
        connections.push_back(URLConnection::make(
            answers ? consoleRequest(simulator.address(), "/none") : feedRequest(simulator, key), delegates.back()));
        connections.back()->setDelegateQueue(m_queue);
        connections.back()->start();
        if (i % 3 == 2) {
            connections.back()->cancel();
        }
    }
    for (const auto& connection : connections) {
        connection->cancel();
        connection->cancel();
    }
    for (int i = 0; i < count; ++i) {
        const auto& delegate = delegates[static_cast<std::size_t>(i)];
        const Result<URLLoad> load = delegate->outcome();
        if (!load.ok()) {
            EXPECT_EQ(codeOf(load), URLErrorCode::Cancelled);
        } else {
            EXPECT_EQ(i % 3, 1);
        }
        connections[static_cast<std::size_t>(i)]->cancel();
    }
    m_queue.waitUntilAllOperationsAreFinished();
    for (const auto& delegate : delegates) {
        EXPECT_EQ(delegate->ends, 1);
        EXPECT_EQ(delegate.use_count(), 1) << "an ended connection lets its delegate go";
    }
}

TEST_F(URLLoadingTest, DawdlingServerDoesNotHoldUpTheOthers)
{
    simulator::Settings settings;
    settings.consoles = 2;
    simulator::SimulatorProcess simulator(settings);
    const std::string badKey = logOn(simulator, 0);
    const std::string key = logOn(simulator, 1);
    simulator.setFault("stallFeed:All:0");
    std::vector<std::shared_ptr<RecordingDelegate>> stalled;
    std::vector<std::shared_ptr<URLConnection>> connections;
    for (int i = 0; i < 400; ++i) {
        stalled.push_back(std::make_shared<RecordingDelegate>(Answer::Accept));
        connections.push_back(URLConnection::make(feedRequest(simulator, badKey, 0), stalled.back()));
        connections.back()->setDelegateQueue(m_queue);
        connections.back()->start();
    }
    std::latch settled(50);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 50; ++i) {
        sendAsynchronousRequest(feedRequest(simulator, key, 1), m_queue, [&](const Result<URLLoad>& load) {
            EXPECT_TRUE(load.ok());
            settled.count_down();
        });
    }
    settled.wait();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20s) << "the silent requests have a minute";
    for (const auto& connection : connections) {
        connection->cancel();
    }
    for (const auto& delegate : stalled) {
        EXPECT_EQ(codeOf(delegate->outcome()), URLErrorCode::Cancelled);
    }
}

TEST_F(URLLoadingTest, BlockingLookUpsShareOneConnection)
{
    simulator::SimulatorProcess simulator{{}};
    const std::string key = logOn(simulator);
    const auto before = simulator.handshakes();
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(sendSynchronousRequest(feedRequest(simulator, key)).ok());
    }
    EXPECT_EQ(simulator.handshakes() - before, 1U);
    // The server lets the connection go between two look-ups.
    simulator.stopConsole(0);
    simulator.startConsole(0);
    EXPECT_TRUE(sendSynchronousRequest(feedRequest(simulator, key)).ok());
    EXPECT_TRUE(loadAsynchronously(feedRequest(simulator, key)).ok());

    std::vector<std::thread> threads;
    threads.reserve(8);
    std::atomic<int> good{0};
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            for (int k = 0; k < 20; ++k) {
                good += sendSynchronousRequest(feedRequest(simulator, key)).ok() ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(good, 160);
}

TEST_F(URLLoadingTest, AFleetSharesFewConnectionsAConsole)
{
    simulator::Settings settings;
    settings.consoles = 16;
    simulator::SimulatorProcess simulator{settings};
    std::vector<URLRequest> requests;
    for (int i = 0; i < settings.consoles; ++i) {
        requests.insert(requests.end(), 6, feedRequest(simulator, logOn(simulator, i), i));
        std::for_each(requests.end() - 6, requests.end(), [](URLRequest& one) { one.urgency = Urgency::Fleet; });
    }
    std::latch settled(std::ssize(requests));
    std::atomic<int> answered{0};
    for (const URLRequest& request : requests) {
        sendAsynchronousRequest(request, m_queue, [&](const Result<URLLoad>& load) {
            answered += load.ok() ? 1 : 0;
            settled.count_down();
        });
    }
    settled.wait();
    EXPECT_EQ(answered, std::ssize(requests));
    EXPECT_LE(simulator.handshakes(), 2U * static_cast<unsigned>(settings.consoles));
    rlimit files{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &files), 0);
    EXPECT_EQ(files.rlim_cur, files.rlim_max) << "and descriptors suffice for all";
}

TEST_F(URLLoadingTest, ASimulatedNetworkTakesTheTimeThatTheseTestsCountOn)
{
    struct Network {
        int roundTrip; ///< ms
        int stalls;
        int roundTrips; ///< of a request on a connection that stands
    };
    // Where each piece is late, request and answer take two and a half round trips each.
    for (const auto& [roundTrip, stalls, roundTrips] : {Network{200, 0, 1}, {50, 100, 5}}) {
        simulator::Settings settings;
        settings.roundTrip = roundTrip;
        settings.stalls = stalls;
        simulator::SimulatorProcess simulator{settings};
        logOn(simulator);
        URLRequest request = feedRequest(simulator, "none");
        EXPECT_EQ(sendSynchronousRequest(request).value().response.statusCode, 403);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(sendSynchronousRequest(request).value().response.statusCode, 403);
        EXPECT_EQ((std::chrono::steady_clock::now() - start) / std::chrono::milliseconds(roundTrip), roundTrips);
    }
}

TEST_F(URLLoadingTest, SixRequestsLeaveTogetherThroughANetworkWithALength)
{
    constexpr auto roundTrip = 400ms;
    simulator::Settings settings;
    settings.consoles = 5;
    settings.roundTrip = roundTrip.count();
    simulator::SimulatorProcess simulator{settings};
    using Clock = std::chrono::steady_clock;
    const auto refresh = [&](const std::vector<std::string>& keys) {
        std::latch settled(6 * settings.consoles);
        const auto start = Clock::now();
        for (int i = 0; i < settings.consoles; ++i) {
            for (int k = 0; k < 6; ++k) {
                URLRequest request = feedRequest(simulator, keys[static_cast<std::size_t>(i)], i);
                request.urgency = Urgency::Fleet;
                sendAsynchronousRequest(request, m_queue, [&](const Result<URLLoad>& load) {
                    EXPECT_TRUE(load.ok() && load.value().response.statusCode == 200);
                    settled.count_down();
                });
            }
        }
        settled.wait();
        return Clock::now() - start;
    };
    std::vector<std::string> keys;
    for (int i = 0; i < settings.consoles; ++i) {
        const auto expected = expectRequests("https://" + simulator.address(i) + ":12443/", 5);
        keys.push_back(logOn(simulator, i));
    }
    const auto first = HandshakeHold::isPossible ? 1.5 * roundTrip : 5.0 * roundTrip;
    EXPECT_LT(refresh(keys), first) << "connections were made while the logons were under way";
    EXPECT_EQ(simulator.requests().size(), 7U * 5U) << "and nothing was asked on them but what was to be asked";
    const auto handshakes = simulator.handshakes();
    EXPECT_EQ(handshakes, 6U * 5U);
    EXPECT_LT(refresh(keys), 1.5 * roundTrip) << "kept connections serve all six at once";
    EXPECT_EQ(simulator.handshakes(), handshakes);

    // A person's request meets a console whose connections are all in use, and takes the first that comes free.
    std::thread others([&] { refresh(keys); });
    std::this_thread::sleep_for(roundTrip / 2);
    const auto start = Clock::now();
    EXPECT_TRUE(loadAsynchronously(feedRequest(simulator, keys[0], 0)).ok());
    EXPECT_LT(Clock::now() - start, HandshakeHold::isPossible ? 2.2 * roundTrip : 3.5 * roundTrip);
    others.join();

    // Kept connections that their servers have closed are made anew, and no request is the worse for it.
    for (int i = 0; i < settings.consoles; ++i) {
        simulator.stopConsole(i);
        simulator.startConsole(i);
    }
    EXPECT_LT(refresh(keys), (HandshakeHold::isPossible ? 4.5 : 6.0) * roundTrip);
}

TEST_F(URLLoadingTest, NoMoreConnectionsAreMadeThanTheirLimitThroughASlowNetworkEither)
{
    TransferLimits::shared().connections = 6;
    TransferLimits::shared().connectionsOfSlowNetwork = 8;
    simulator::Settings settings;
    settings.consoles = 4;
    settings.roundTrip = 100;
    simulator::SimulatorProcess simulator{settings};
    std::vector<URLRequest> requests;
    for (int console = 0; console < settings.consoles; ++console) {
        URLRequest request = feedRequest(simulator, logOn(simulator, console), console);
        request.urgency = Urgency::Fleet;
        requests.insert(requests.end(), 6, request);
    }
    std::latch settled(static_cast<std::ptrdiff_t>(requests.size()));
    for (const URLRequest& request : requests) {
        sendAsynchronousRequest(request, m_queue, [&](const Result<URLLoad>& load) {
            EXPECT_TRUE(load.ok() && load.value().response.statusCode == 200);
            settled.count_down();
        });
    }
    settled.wait();
    EXPECT_LE(simulator.handshakes(), 8);
}

TEST_F(URLLoadingTest, ConnectionsMadeAheadMayBeOlderThanTheCertificateAndThanTheirServersPatience)
{
    simulator::Settings settings;
    settings.consoles = 2;
    settings.roundTrip = 200;
    simulator::SimulatorProcess simulator{settings};
    const auto loadSix = [&](const std::string& key, int console) {
        std::latch settled(6);
        std::atomic<int> good{0};
        for (int i = 0; i < 6; ++i) {
            sendAsynchronousRequest(feedRequest(simulator, key, console), m_queue, [&](const Result<URLLoad>& load) {
                good += load.ok() && load.value().response.statusCode == 200 ? 1 : 0;
                settled.count_down();
            });
        }
        settled.wait();
        return good.load();
    };
    const auto logOnWithConnectionsAhead = [&](int console) {
        const auto expected = expectRequests("https://" + simulator.address(console) + ":12443/", 5);
        return logOn(simulator, console);
    };
    logOnWithConnectionsAhead(0);
    simulator.setFault("swapCertificate:0");
    EXPECT_EQ(loadSix(logOn(simulator), 0), 6) << "the old certificate is no reason to refuse the server";

    const std::string key = logOnWithConnectionsAhead(1);
    simulator.stopConsole(1);
    simulator.startConsole(1);
    EXPECT_EQ(loadSix(key, 1), 6) << "what is lost before its answer began is made anew";
}

using URLLoadingDeathTest = URLLoadingTest;

TEST_F(URLLoadingDeathTest, ProcessEndsWithTransfersInFlight)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto leave = [this] {
        simulator::SimulatorProcess simulator{{}};
        const std::string key = logOn(simulator);
        simulator.setFault("stallFeed:All");
        for (int i = 0; i < 300; ++i) {
            connect(feedRequest(simulator, key), Answer::Accept);
        }
        std::exit(7);
    };
    EXPECT_EXIT(leave(), testing::ExitedWithCode(7), "");
}

TEST_F(URLLoadingDeathTest, NobodyHasTheSecretsOfConnectionsWritten)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const ScratchFolder folder;
    const std::string path = folder.file("secrets");
    const auto load = [&] {
        ::setenv("SSLKEYLOGFILE", path.c_str(), 1);
        simulator::SimulatorProcess simulator{{}};
        std::exit(logOn(simulator).empty() || std::filesystem::exists(path) ? 1 : 7);
    };
    EXPECT_EXIT(load(), testing::ExitedWithCode(7), "");
}

} // namespace lodestar::test

// SPDX-License-Identifier: Apache-2.0
// Many transfers at once, and the connections that they share.
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/URLLoading/HandshakeHold.h"
#include "Tests/Platform/URLLoadingFixture.h"
#include "Tests/Support/ScratchFolder.h"

#include <atomic>
#include <latch>
#include <sys/resource.h>
#include <thread>

namespace lodestar::test
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST_F(URLLoadingTest, CancelledConnectionsEndOnceWhenever)
{
    simulator::SimulatorProcess simulator{{}};
    const std::string key = logOn(simulator);
    simulator.setFault("stallFeed:All");
    constexpr int count = 120;
    std::vector<std::pair<std::shared_ptr<URLConnection>, std::shared_ptr<RecordingDelegate>>> all;
    for (int i = 0; i < count; ++i) {
        // A third never answers, a third answers at once, and a third is cancelled while it still waits for its turn.
        const auto request = i % 3 == 1 ? consoleRequest(simulator.address(), "/none") : feedRequest(simulator, key);
        const auto delegate = std::make_shared<RecordingDelegate>(Answer::Accept);
        all.emplace_back(start(request, delegate), delegate);
        if (i % 3 == 2) {
            all.back().first->cancel();
        }
    }
    for (const auto& [connection, delegate] : all) {
        connection->cancel();
        connection->cancel();
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Result<URLLoad> load = all[i].second->outcome();
        if (i % 3 != 1 || !load) {
            EXPECT_EQ(codeOf(load), URLErrorCode::Cancelled);
        }
        all[i].first->cancel();
    }
    m_queue.waitUntilAllOperationsAreFinished();
    for (const auto& [connection, delegate] : all) {
        EXPECT_EQ(delegate->ends, 1);
        EXPECT_EQ(delegate.use_count(), 1) << "an ended connection lets its delegate go";
    }
}

TEST_F(URLLoadingTest, DawdlingServerDoesNotHoldUpTheOthers)
{
    simulator::SimulatorProcess simulator({.consoles = 2});
    const std::string badKey = logOn(simulator, 0);
    const std::string key = logOn(simulator, 1);
    simulator.setFault("stallFeed:All:0");
    std::vector<std::function<void()>> cancels;
    for (int i = 0; i < 400; ++i) {
        cancels.push_back(sendAsynchronousRequest(feedRequest(simulator, badKey, 0), m_queue,
                                                  [](const Result<URLLoad>& load) { EXPECT_FALSE(load.ok()); }));
    }
    const auto start = Clock::now();
    EXPECT_EQ(loadTogether({50, feedRequest(simulator, key, 1)}), 50);
    EXPECT_LT(Clock::now() - start, 20s) << "the silent requests have a minute";
    for (const auto& cancel : cancels) {
        cancel();
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

    std::atomic<int> good{0};
    {
        std::vector<std::jthread> threads(8);
        for (std::jthread& thread : threads) {
            thread = std::jthread([&] {
                for (int i = 0; i < 20; ++i) {
                    good += sendSynchronousRequest(feedRequest(simulator, key)).ok() ? 1 : 0;
                }
            });
        }
    }
    EXPECT_EQ(good, 160);
}

TEST_F(URLLoadingTest, SixRequestsLeaveTogetherThroughANetworkWithALength)
{
    constexpr auto roundTrip = 400ms;
    simulator::SimulatorProcess simulator({.consoles = 5, .roundTrip = roundTrip.count()});
    const auto requests = fleetRequests(simulator, 5);
    const auto refresh = [&] {
        const auto start = Clock::now();
        EXPECT_EQ(loadTogether(requests), std::ssize(requests));
        const auto taken = Clock::now() - start;
        EXPECT_GE(taken, roundTrip) << "as long as the network is";
        return taken;
    };
    const auto first = HandshakeHold::isPossible ? 1.5 * roundTrip : 5.0 * roundTrip;
    EXPECT_LT(refresh(), first) << "connections were made while the logons were under way";
    EXPECT_EQ(simulator.requests().size(), 7U * 5U) << "and nothing was asked on them but what was to be asked";
    const auto handshakes = simulator.handshakes();
    EXPECT_EQ(handshakes, 6U * 5U);
    EXPECT_LT(refresh(), 1.5 * roundTrip) << "kept connections serve all six at once";
    EXPECT_EQ(simulator.handshakes(), handshakes);

    // A person's request meets a console whose connections are all in use, and takes the first that comes free.
    std::thread others([&] { refresh(); });
    std::this_thread::sleep_for(roundTrip / 2);
    const auto start = Clock::now();
    URLRequest persons = requests.front();
    persons.urgency = Urgency::Person;
    EXPECT_TRUE(loadAsynchronously(persons).ok());
    EXPECT_LT(Clock::now() - start, HandshakeHold::isPossible ? 2.2 * roundTrip : 3.5 * roundTrip);
    others.join();

    // Kept connections that their servers have closed are made anew, and no request is the worse for it.
    for (int i = 0; i < simulator.consoleCount(); ++i) {
        simulator.stopConsole(i);
        simulator.startConsole(i);
    }
    EXPECT_LT(refresh(), (HandshakeHold::isPossible ? 4.5 : 6.0) * roundTrip);
}

TEST_F(URLLoadingTest, AFleetSharesFewConnectionsAndThroughASlowNetworkNoMoreThanTheirLimit)
{
    const auto handshakes = [this](int consoles, int roundTrip) {
        simulator::SimulatorProcess simulator({.consoles = consoles, .roundTrip = roundTrip});
        const auto requests = fleetRequests(simulator);
        EXPECT_EQ(loadTogether(requests), std::ssize(requests));
        return simulator.handshakes();
    };
    EXPECT_LE(handshakes(16, 0), 2U * 16U);
    TransferLimits::shared().connections = 6;
    TransferLimits::shared().connectionsOfSlowNetwork = 8;
    EXPECT_LE(handshakes(4, 100), 8U);
    rlimit files{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &files), 0);
    EXPECT_EQ(files.rlim_cur, files.rlim_max) << "and descriptors suffice for all";
}

TEST_F(URLLoadingTest, ConnectionsMadeAheadMayBeOlderThanTheCertificateAndThanTheirServersPatience)
{
    simulator::SimulatorProcess simulator({.consoles = 2, .roundTrip = 200});
    fleetRequests(simulator, 5);
    simulator.setFault("swapCertificate:0");
    EXPECT_EQ(loadTogether({6, feedRequest(simulator, logOn(simulator))}), 6)
        << "the old certificate is no reason to refuse the server";

    const auto expected = expectRequests("https://" + simulator.address(1) + ":12443/", 5);
    const std::string key = logOn(simulator, 1);
    simulator.stopConsole(1);
    simulator.startConsole(1);
    EXPECT_EQ(loadTogether({6, feedRequest(simulator, key, 1)}), 6) << "what is lost before its answer is made anew";
}

using URLLoadingDeathTest = URLLoadingTest;

TEST_F(URLLoadingDeathTest, ProcessEndsWithTransfersAndBlocksInFlight)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto leave = [this] {
        simulator::SimulatorProcess simulator{{}};
        const std::string key = logOn(simulator);
        simulator.setFault("stallFeed:All");
        for (int i = 0; i < 300; ++i) {
            connect(feedRequest(simulator, key));
        }
        std::latch running(3);
        for (int i = 0; i < 1000; ++i) {
            DispatchQueue::globalBackground().async([&running, i] {
                if (i < 3) {
                    running.count_down();
                }
                std::this_thread::sleep_for(i < 3 ? 60s : 0s);
            });
        }
        running.wait();
        std::exit(7);
    };
    const auto start = Clock::now();
    EXPECT_EXIT(leave(), testing::ExitedWithCode(7), "");
    EXPECT_LT(Clock::now() - start, 30s);
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

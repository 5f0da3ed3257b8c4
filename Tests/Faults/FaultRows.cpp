// SPDX-License-Identifier: Apache-2.0
// Rows of the fault table; Scripts/faults.py reads how often each provoked its fault.
#include "Platform/MemoryReserve.h"
#include "Tests/Faults/Drive.h"
#include "Tests/Support/Injection.h"
#include "Tests/Support/LongRun.h"
#include "Tests/Support/ProcessMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <malloc.h>
#include <thread>

namespace lodestar::faults
{
namespace
{

using std::chrono::seconds;

class FaultRows : public testing::Test
{
protected:
    static void SetUpTestSuite() { MemoryReserve::install(); } // as the application does
};

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.empty() ? 0 : values[values.size() / 2];
}

TEST_F(FaultRows, LimitsEndSilenceAndTricklesAsTheyAreShipped)
{
    constexpr std::array<double, 4> limits = {10e3, 10e3, 500e3, 500e3}; // a logon's and a feed's
    RecordProperty("tries", limits.size());
    Drive drive(6);
    for (const char* const fault :
         {"silentAfterAccept:0", "trickle:Logon:1", "stallFeed:ManagedSystem:2", "trickle:ManagedSystem:3"}) {
        drive.simulator().setFault(fault);
    }
    const auto times = drive.refresh(seconds(560));
    for (std::size_t i = 0; i < limits.size(); ++i) {
        EXPECT_GT(times[i], 0.9 * limits.at(i));
        EXPECT_LE(times[i], 1.05 * limits.at(i));
        EXPECT_EQ(drive.consoles()[i]->isOnline, i >= 2);
        EXPECT_TRUE(i < 2 || drive.feedTexts(i).at("ManagedSystem") == "NA");
    }
    EXPECT_LT(std::max(times[4], times[5]), 10e3) << "the others waited";
}

/// The latest of all consoles but the last.
double latestOther(const std::vector<double>& times)
{
    return *std::max_element(times.begin(), times.end() - 1);
}

/// The last console is struck, and the first one stands for the others.
TEST_F(FaultRows, TooMuchIsCutAndTheOthersDoNotWait)
{
    constexpr double memoryAllowed = 192e6 + 150e6; // the budget for bodies, and some for everything else
    constexpr std::array faults = {"hugeBody", "gzipBomb", "hugeHeaders", "endlessChunk"};
    constexpr int pairs = 21; // one refresh takes a tenth of a second, and differs from the next by a third of that
    RecordProperty("tries", faults.size() * pairs);
    constexpr std::size_t last = 49;
    // A console is a machine of its own: what it does to send so much takes nothing from the others' processes.
    simulator::SimulatorProcess striker(settingsOf(1));
    Drive drive(last, {striker.address()});
    drive.refresh();
    auto struck = drive.feedTexts(last);
    struck["ManagedSystem"] = "NA";
    const auto other = drive.feedTexts(0);
    double worst = 0;
    for (const std::string fault : faults) {
        SCOPED_TRACE(fault);
        std::vector<double> without;
        std::vector<double> beside;
        for (int i = 0; i < pairs; ++i) {
            without.push_back(latestOther(drive.refresh()));
            striker.setFault(fault + ":ManagedSystem");
            const double before = startPeak();
            beside.push_back(latestOther(drive.refresh()));
            EXPECT_LE(memory("VmHWM") - before, memoryAllowed);
            EXPECT_EQ(drive.logged("Feed failed: "), 1);
            EXPECT_EQ(drive.feedTexts(last), struck);
            EXPECT_EQ(drive.feedTexts(0), other);
            EXPECT_TRUE(drive.consoles()[0]->isOnline && drive.consoles()[last]->isOnline);
            striker.clearFaults();
        }
        worst = std::max(worst, median(beside) / median(without));
    }
    EXPECT_LE(worst, 1.1) << "times the others' time";
    RecordProperty("ratio", std::to_string(worst));
}

/// Peak memory of the first refreshes of so many, a console.
double memoryOfFleet(int consoles)
{
    Drive drive(consoles);
    malloc_trim(0);
    const double before = startPeak();
    // On a busy machine some of so many logons run into their limit; a pull brings those back.
    std::ptrdiff_t online = 0;
    for (int pull = 0; pull < 3 && online < consoles; ++pull) {
        drive.refresh(seconds(900));
        online = std::ranges::count_if(drive.consoles(), [](auto& console) { return console->isOnline.load(); });
    }
    EXPECT_EQ(online, consoles);
    return (memory("VmHWM") - before) / consoles;
}

TEST_F(FaultRows, AFleetsMemoryGrowsWithItsNumber)
{
    RecordProperty("tries", 2);
    const double few = memoryOfFleet(1000);
    EXPECT_LE(memoryOfFleet(5000), 1.1 * few) << "a console";
}

/// Ten hours of a pull every five seconds, without the seconds between; consoles fail and come back all the while.
TEST_F(FaultRows, PullsLeaveMemoryFlat)
{
    constexpr std::array faults = {"refuseLogon:0",
                                   "cutBody:ManagedSystem:1",
                                   "expireSession:0",
                                   "malformedFeed:LogicalPartition:2",
                                   "refuseFeed:Group:0",
                                   "swapCertificate:1",
                                   "reset:2",
                                   "cutGzip:ServiceableEvent:1",
                                   "logonWithoutKey:All",
                                   "emptyFeed:ManagementConsole:2"};
    const int count = rounds(1000, 10 * 3600 / 5);
    RecordProperty("tries", count);
    Drive drive(3);
    std::vector<double> early;
    std::vector<double> late;
    for (int pull = 0; pull < count; ++pull) {
        SCOPED_TRACE(pull);
        if (pull % 10 == 0) {
            drive.simulator().setFault(faults.at(static_cast<std::size_t>(pull / 10) % faults.size()));
        } else if (pull % 10 == 5) {
            drive.simulator().clearFaults();
        }
        drive.refresh();
        // The history catches up between two pulls; without any time it would hold what waits for it.
        std::this_thread::sleep_for(std::chrono::milliseconds(6));
        if (pull >= count / 5 && pull < 2 * count / 5) {
            early.push_back(memory("VmRSS"));
        } else if (pull >= 4 * count / 5) {
            late.push_back(memory("VmRSS"));
        }
    }
    EXPECT_LE(median(late), 1.05 * median(early));
}

/// Allocation after allocation of a refresh fails, on whatever thread: the network's, the parsers', the promises'.
TEST_F(FaultRows, RefusedMemoryLeavesFeedsWholeOrNotAvailable)
{
    Drive drive(2);
    drive.refresh();
    const auto good = drive.feedTexts(0);
    constexpr injection::Kind allocation{injection::Call::Allocation};
    const int tries = injection::forEachFailure(allocation, rounds(97, 11), [&](int number) {
        {
            const injection::Failing failing(allocation, number, injection::Threads::All);
            drive.refresh(seconds(30));
        }
        for (const auto& [type, text] : drive.feedTexts(0)) {
            EXPECT_TRUE(text == good.at(type) || text == "NA" || !drive.consoles()[0]->isOnline) << type;
        }
        drive.refresh();
        EXPECT_EQ(drive.feedTexts(0), good) << "the next refresh is whole";
    });
    RecordProperty("tries", tries);
}

} // namespace
} // namespace lodestar::faults

// SPDX-License-Identifier: Apache-2.0
// Very many consoles, and a day of pulls.
#include "Tests/Faults/Drive.h"
#include "Tests/Support/Injection.h"
#include "Tests/Support/LongRun.h"

#include <algorithm>
#include <malloc.h>
#include <random>

namespace lodestar::faults
{
namespace
{

using std::chrono::seconds;

/// A fleet whose consoles remember no requests.
simulator::Settings forgetfulFleet(int consoles)
{
    simulator::Settings settings = settingsFor(consoles);
    settings.recordCap = 0;
    return settings;
}

/// Peak memory of the first refreshes of so many, a console.
double memoryOfFleet(Outcome& outcome, int consoles)
{
    Drive drive(outcome, forgetfulFleet(consoles));
    malloc_trim(0);
    const double before = startPeak();
    // On a busy machine some of so many logons run into their limit; a pull brings those back.
    int online = 0;
    for (int pull = 0; pull < 3 && online < consoles; ++pull) {
        drive.refresh(seconds(900));
        online = static_cast<int>(
            std::ranges::count_if(drive.consoles(), [](const CorvelRef& console) { return console->isOnline.load(); }));
    }
    outcome.expect(online == consoles, std::to_string(online) + " are online");
    return (memory("VmHWM") - before) / consoles;
}

void largeFleet(Outcome& outcome)
{
    double few = 0;
    outcome.attempt("1,000 consoles", [&] { few = memoryOfFleet(outcome, 1000); });
    outcome.attempt("5,000 consoles", [&] {
        const double many = memoryOfFleet(outcome, 5000);
        outcome.expect(many <= 1.1 * few, std::to_string(many / few) + " times the memory a console");
    });
}

/// Ten hours of a pull every five seconds, without the seconds between; consoles fail and come back all the while.
void pulls(Outcome& outcome)
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
    Drive drive(outcome, forgetfulFleet(3));
    std::vector<double> early;
    std::vector<double> late;
    for (int pull = 0; pull < count; ++pull) {
        outcome.attempt("pull " + std::to_string(pull), [&] {
            if (pull % 10 == 0) {
                drive.simulator().setFault(faults.at(static_cast<std::size_t>(pull / 10) % faults.size()));
            } else if (pull % 10 == 5) {
                drive.simulator().clearFaults();
            }
            drive.refresh();
        });
        if (pull >= count / 5 && pull < 2 * count / 5) {
            early.push_back(memory("VmRSS"));
        } else if (pull >= 4 * count / 5) {
            late.push_back(memory("VmRSS"));
        }
    }
    outcome.attempt("memory after all pulls", [&] {
        outcome.expect(median(late) <= 1.05 * median(early), std::to_string(median(late) / median(early)) + " times");
    });
}

/// Allocation after allocation of a refresh fails, on whatever thread: the network's, the parsers', the promises'.
void refusedMemory(Outcome& outcome)
{
    Drive drive(outcome, forgetfulFleet(2));
    drive.refresh();
    const auto good = drive.feedTexts(0);
    injection::forEachFailure(rounds(97, 11), [&](int number) {
        outcome.attempt("allocation " + std::to_string(number), [&] {
            {
                const injection::Failing failing({injection::Call::Allocation}, number, injection::Threads::All);
                drive.refresh(seconds(30));
            }
            for (const auto& [type, text] : drive.feedTexts(0)) {
                outcome.expect(text == good.at(type) || text == "NA" || !drive.consoles()[0]->isOnline,
                               type + " is another one");
            }
        });
        outcome.attempt("after allocation " + std::to_string(number), [&] {
            drive.refresh();
            outcome.expect(drive.feedTexts(0) == good, "the next refresh is not whole");
        });
    });
}

} // namespace

const std::map<std::string, Row>& fleetRows()
{
    static const std::map<std::string, Row> rows = {
        {"large-fleet", &largeFleet},
        {"pulls", &pulls},
        {"refused-memory", &refusedMemory},
    };
    return rows;
}

} // namespace lodestar::faults

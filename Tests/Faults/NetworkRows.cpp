// SPDX-License-Identifier: Apache-2.0
// What a console or the way to it does. Console 0 and its next ones are struck, the last ones stand for the others.
#include "Controllers/REST/RESTHandler.h"
#include "Tests/Faults/Drive.h"

#include <algorithm>

namespace lodestar::faults
{
namespace
{

using std::chrono::seconds;

constexpr double others = 1.1; ///< times their time beside a good console, at most
constexpr double heldBudget = 192e6;
constexpr double allowance = 150e6;

/// That the console has those feeds, "NA" in the place of the struck one.
void expectFeeds(Outcome& outcome, const Drive& drive, int console, std::map<std::string, std::string> wanted,
                 std::string_view struck = {})
{
    if (!struck.empty()) {
        wanted[std::string(struck)] = "NA";
    }
    for (const auto& [type, text] : drive.feedTexts(console)) {
        outcome.expect(text == wanted[type], "console " + std::to_string(console) + ": " + type +
                                                 (text == "NA" ? " is missing" : " differs"));
    }
    outcome.expect(drive.consoles()[static_cast<std::size_t>(console)]->isOnline, "the console is not online");
}

void offline(Outcome& outcome)
{
    // A connection goes to no multicast address: the system says that there is no route to it.
    const std::array<std::string, 2> nowhere = {"224.0.0.1", "no-such-console.invalid"};
    Drive drive(outcome, settingsFor(3), {nowhere[0], nowhere[1]});
    drive.refresh();
    const auto good = drive.feedTexts(2);
    drive.simulator().setFault("closePort:0");
    for (int round = 0; round < 10; ++round) {
        outcome.attempt("round " + std::to_string(round), [&] {
            const auto times = drive.refresh();
            for (const std::size_t unreachable : {0U, 3U, 4U}) {
                outcome.expect(times.at(unreachable) < 10'500 && !drive.consoles()[unreachable]->isOnline,
                               "console " + std::to_string(unreachable) + " is online, or settled late");
            }
            expectFeeds(outcome, drive, 2, good);
        });
    }
}

void brokenBodies(Outcome& outcome)
{
    constexpr std::array faults = {"reset", "cutBody", "cutGzip", "cutChunk", "twoLengths", "refuseFeed"};
    constexpr int struck = static_cast<int>(faults.size() * feedTypes.size());
    Drive drive(outcome, settingsFor(struck + 2));
    drive.refresh();
    std::vector<std::map<std::string, std::string>> good;
    for (int i = 0; i < struck + 2; ++i) {
        good.push_back(drive.feedTexts(i));
    }
    for (int i = 0; i < struck; ++i) {
        drive.simulator().setFault(std::string(faults.at(static_cast<std::size_t>(i) / 6)) + ":" +
                                   std::string(feedTypes.at(static_cast<std::size_t>(i) % 6)) + ":" +
                                   std::to_string(i));
    }
    drive.refresh();
    for (int i = 0; i < struck; ++i) {
        outcome.attempt(faults.at(static_cast<std::size_t>(i) / 6), [&] {
            expectFeeds(outcome, drive, i, good.at(static_cast<std::size_t>(i)),
                        feedTypes.at(static_cast<std::size_t>(i) % 6));
        });
    }
    outcome.attempt("the others", [&] {
        expectFeeds(outcome, drive, struck, good.at(struck));
        expectFeeds(outcome, drive, struck + 1, good.at(struck + 1));
    });
    outcome.attempt("a refresh later", [&] {
        drive.simulator().clearFaults();
        drive.refresh();
        for (int i = 0; i < struck; ++i) {
            expectFeeds(outcome, drive, i, good.at(static_cast<std::size_t>(i)));
        }
    });
}

/// The limits as they are shipped: ten seconds for a logon, 500 for a feed.
void waits(Outcome& outcome)
{
    constexpr std::array<double, 4> limits = {10e3, 10e3, 500e3, 500e3};
    Drive drive(outcome, settingsFor(6));
    for (const char* const fault :
         {"silentAfterAccept:0", "trickle:Logon:1", "stallFeed:ManagedSystem:2", "trickle:ManagedSystem:3"}) {
        drive.simulator().setFault(fault);
    }
    const auto times = drive.refresh(seconds(560));
    for (std::size_t i = 0; i < limits.size(); ++i) {
        outcome.attempt("console " + std::to_string(i), [&] {
            outcome.expect(times[i] > 0.9 * limits.at(i) && times[i] <= 1.05 * limits.at(i),
                           "settled after " + std::to_string(times[i] / 1e3) + " s");
            outcome.expect(drive.consoles()[i]->isOnline == (i >= 2), "the wrong state");
            outcome.expect(i < 2 || drive.feedText(static_cast<int>(i), ObjectType::ManagedSystem) == "NA", "no NA");
        });
    }
    outcome.attempt("the others", [&] { outcome.expect(std::max(times[4], times[5]) < 10e3, "they waited"); });
}

bool sawText(simulator::SimulatorProcess& simulator, int console, const std::string& text)
{
    return std::ranges::any_of(simulator.requests(console), [&](const simulator::RecordedRequest& request) {
        const auto holds = [&](const std::string& part) { return part.find(text) != std::string::npos; };
        return holds(request.body) || holds(request.path) || std::ranges::any_of(request.headers, holds);
    });
}

void redirects(Outcome& outcome)
{
    Drive drive(outcome, settingsFor(4));
    drive.refresh();
    const auto good = drive.feedTexts(3);
    const std::string key = drive.simulator().requests(1).back().header("X-API-Session").value_or("none");
    for (const std::string_view type : feedTypes) {
        outcome.attempt("redirects of " + std::string(type), [&] {
            drive.simulator().clearRequests();
            drive.simulator().setFault("redirectLoop:" + std::string(type) + ":0");
            drive.simulator().setFault("redirectOtherHost:" + std::string(type) + ":1");
            drive.refresh();
            const auto requests = drive.simulator().requests(0);
            const auto hops = std::ranges::count_if(requests, [](const simulator::RecordedRequest& request) {
                return request.path.find("?hop=") != std::string::npos;
            });
            outcome.expect(hops == 20, std::to_string(hops) + " hops");
            outcome.expect(drive.feedText(0, type) == "NA" && drive.feedText(1, type) == "NA", "no NA");
            outcome.expect(!sawText(drive.simulator(), 2, key), "the key left its origin");
            expectFeeds(outcome, drive, 3, good);
            drive.simulator().clearFaults();
        });
    }
}

/// Consoles of which nobody has a key: each logs on.
void redirectedLogon(Outcome& outcome)
{
    Drive drive(outcome, settingsFor(3));
    drive.simulator().setFault("redirectOtherHost:Logon:0");
    for (int round = 0; round < 5; ++round) {
        outcome.attempt("round " + std::to_string(round), [&] {
            drive.simulator().setFault("expireSession");
            drive.simulator().clearRequests();
            drive.refresh();
            const auto requests = drive.simulator().requests(1);
            const auto logons = std::ranges::count(requests, "PUT", &simulator::RecordedRequest::method);
            outcome.expect(logons == 1, "the other console saw a logon that is not its own");
            outcome.expect(!drive.consoles()[0]->isOnline && drive.consoles()[1]->isOnline, "the wrong state");
        });
    }
}

/// The latest of all but the first.
double latestOther(const std::vector<double>& times)
{
    return *std::max_element(times.begin() + 1, times.end());
}

void tooMuch(Outcome& outcome)
{
    constexpr int pairs = 21; // one refresh takes a tenth of a second, and differs from the next by a third of that
    Drive drive(outcome, settingsFor(50));
    drive.refresh();
    const auto good = drive.feedTexts(0);
    const auto goodOther = drive.feedTexts(49);
    for (const char* const fault : {"hugeBody", "gzipBomb", "hugeHeaders", "endlessChunk"}) {
        const std::string whole = std::string(fault) + ":ManagedSystem:0";
        std::vector<double> without;
        std::vector<double> beside;
        for (int i = 0; i < pairs; ++i) {
            outcome.attempt(fault, [&] {
                without.push_back(latestOther(drive.refresh()));
                drive.simulator().setFault(whole);
                const double before = startPeak();
                beside.push_back(latestOther(drive.refresh()));
                outcome.expect(memory("VmHWM") - before <= heldBudget + allowance,
                               std::to_string((memory("VmHWM") - before) / 1e6) + " MB more");
                outcome.expect(drive.logged("Feed failed: ") == 1, "the log does not name it once");
                expectFeeds(outcome, drive, 0, good, ObjectType::ManagedSystem);
                expectFeeds(outcome, drive, 49, goodOther);
            });
            drive.simulator().clearFault(whole);
        }
        const double ratio = median(beside) / median(without);
        outcome.slowed(ratio);
        outcome.attempt(std::string(fault) + ": the others' time",
                        [&] { outcome.expect(ratio <= others, std::to_string(ratio) + " times"); });
    }
}

void certificates(Outcome& outcome)
{
    Drive drive(outcome, settingsFor(4));
    drive.refresh();
    const auto good = drive.feedTexts(3);
    RESTHandler& handler = RESTHandler::sharedInstance();
    for (const char* const fault : {"expiredCertificate:0", "misnamedCertificate:1"}) {
        outcome.attempt(fault, [&] {
            drive.simulator().setFault(fault);
            drive.refresh();
            for (const int console : {0, 1, 2}) {
                outcome.expect(drive.feedText(console, ObjectType::ManagedSystem) != "NA", "a feed is missing");
            }
        });
    }
    for (int round = 0; round < 10; ++round) {
        outcome.attempt("swapped between logon and feeds", [&] {
            const CorvelRef& console = drive.consoles()[2];
            const auto logon = handler.login(console, CheckToken::Yes);
            outcome.expect(drive.runUntil([&] { return !logon.isPending(); }, seconds(30)), "no logon");
            drive.simulator().setFault("swapCertificate:2");
            drive.forgetLines();
            const auto feeds = handler.fetchAllDataForCorvel(console, logon.result()->value());
            outcome.expect(drive.runUntil([&] { return !feeds.isPending(); }, seconds(30)), "no feeds");
            const auto result = feeds.result();
            outcome.expect(result->value()->feed(ObjectType::ManagedSystem).isNA(), "a feed came of another server");
            outcome.expect(drive.logged("certificate") > 0, "the log says nothing");
            drive.refresh();
            outcome.expect(drive.feedText(2, ObjectType::ManagedSystem) != "NA", "the next refresh did not recover");
            expectFeeds(outcome, drive, 3, good);
        });
    }
}

} // namespace

const std::map<std::string, Row>& networkRows()
{
    static const std::map<std::string, Row> rows = {
        {"offline", &offline},           {"broken-bodies", &brokenBodies},       {"waits", &waits},
        {"redirects", &redirects},       {"redirected-logon", &redirectedLogon}, {"too-much", &tooMuch},
        {"certificates", &certificates},
    };
    return rows;
}

} // namespace lodestar::faults

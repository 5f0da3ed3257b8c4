// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Benchmarks/Program.h"
#include "Benchmarks/Refresh/ProgramRun.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Registry.h"
#include "Platform/Queues/MainQueue.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

// Refreshes every console of a fleet over a simulated network with a round trip: a logon or session check, then six
// feeds of 200 KB. Our client and curl run in turn, each as a whole process. Ours refreshes twice: the second time,
// session keys and connections exist already.

namespace lodestar
{

namespace
{

namespace fs = std::filesystem;
using bench::median;
using bench::runProgram;
using namespace std::chrono_literals;

constexpr auto longestRun = std::chrono::minutes(10);
/// Milliseconds of a round trip so short that the time is mostly work, the simulated network's work included.
constexpr int nearby = 4;
/// So many consoles at the front of the fleet misbehave; a refresh does not wait for them.
constexpr std::size_t badConsoles = 2;

double nanoseconds(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double, std::nano>(duration).count();
}

// ---- The measured process, with our client.

using Clock = std::chrono::steady_clock;

std::vector<CorvelRef> readConsoles(const std::string& path)
{
    StoreStack::shared().setApplicationDocumentsDirectory(fs::path(path).parent_path().string() + "/measured");
    std::vector<CorvelRef> corvels;
    std::ifstream file(path);
    std::string address;
    std::string user;
    std::string password;
    while (file >> address >> user >> password) {
        corvels.push_back(std::make_shared<Corvel>());
        corvels.back()->setName(address);
        corvels.back()->setAddress(address);
        corvels.back()->setUsername(user);
        corvels.back()->setPassword(password);
    }
    return corvels;
}

template <typename Value>
void await(const RXPromise<Value>& promise)
{
    bench::require(MainQueue::shared().runUntil([&promise] { return !promise.isPending(); }, longestRun) &&
                       promise.isFulfilled(),
                   "a refresh failed");
}

RXPromise<std::vector<std::string>> refresh(const std::vector<CorvelRef>& corvels, std::size_t ignored)
{
    std::vector<RXPromise<std::string>> all;
    all.reserve(corvels.size());
    for (const CorvelRef& corvel : corvels) {
        all.push_back(fetchInventory(corvel, Urgency::Fleet));
    }
    all.erase(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(ignored));
    return RXPromise<std::string>::all(all);
}

void requireFeeds(const std::vector<CorvelRef>& corvels, std::size_t ignored)
{
    for (std::size_t i = ignored; i < corvels.size(); ++i) {
        for (const std::string_view path : bench::feedPaths) {
            bench::require(feedOfType(*corvels[i], path.substr(4)).entryCount() > 0, "a feed is missing");
        }
    }
}

double ownFeed(const CorvelRef& corvel)
{
    const auto start = Clock::now();
    await(fetchFeedWithStoredKey(corvel, ObjectType::ManagedSystem));
    return nanoseconds(Clock::now() - start);
}

/// The slowest of three single feeds, requested at different moments of a refresh: during the session checks, while the
/// feeds are requested, and while they arrive.
double ownFeedDuringRefresh(const std::vector<CorvelRef>& corvels, std::chrono::milliseconds roundTrip)
{
    double slowest = 0;
    for (const int tenths : {5, 12, 17}) {
        const auto all = refresh(corvels, 0);
        const auto until = Clock::now() + roundTrip * tenths / 10;
        MainQueue::shared().runUntil([until] { return Clock::now() >= until; }, longestRun);
        slowest = std::max(slowest, ownFeed(corvels.back()));
        await(all);
    }
    return slowest;
}

/// Writes into a file beside `path` when the first refresh ended (nanoseconds of the clock) and how long the second
/// took; on request also how long a single feed takes, alone and during a refresh.
int refreshTwice(const std::string& path, std::size_t ignored, int ownFeedAtRoundTrip)
{
    // The transport logs to standard output.
    bench::require(std::freopen("/dev/null", "w", stdout) != nullptr, "no /dev/null");
    const std::vector<CorvelRef> corvels = readConsoles(path);
    await(refresh(corvels, ignored));
    const auto firstEnd = Clock::now();
    requireFeeds(corvels, ignored);
    // The bad consoles' first requests are still under way, so that a second refresh of these would be a different
    // case.
    const std::vector<CorvelRef> good(corvels.begin() + static_cast<std::ptrdiff_t>(ignored), corvels.end());
    const auto secondStart = Clock::now();
    await(refresh(good, 0));
    const auto secondEnd = Clock::now();
    requireFeeds(good, 0);
    std::ofstream times(path + ".times");
    times.precision(20);
    times << nanoseconds(firstEnd.time_since_epoch()) << ' ' << nanoseconds(secondEnd - secondStart);
    if (ownFeedAtRoundTrip > 0) {
        const double alone = ownFeed(good.back());
        times << ' ' << alone << ' ' << ownFeedDuringRefresh(good, std::chrono::milliseconds(ownFeedAtRoundTrip));
    }
    times << '\n';
    return times.flush() ? 0 : 1;
}

// ---- The measuring process, with simulator and reference.

struct Times {
    double first = 0;
    double second = 0;
    double feedAlone = 0;
    double feedDuringRefresh = 0;
};

/// The last console, which is the one that a person asks, has a simulator process of its own: a real console is a
/// machine of its own. In the others' process the person's request would wait for the answers to their requests.
class Fleet
{
public:
    Fleet(int consoles, int roundTrip, bool bad = false, int stalls = 0)
        : m_roundTrip(roundTrip), m_ignored(bad ? badConsoles : 0)
    {
        fs::create_directory(m_scratch.file("measured"));
        StoreStack::shared().setApplicationDocumentsDirectory(m_scratch.path());
        simulator::Settings settings;
        settings.consoles = std::max(consoles - 1, 1);
        settings.systems = 40;
        settings.vios = 80;
        settings.events = 120;
        settings.groups = 120;
        settings.feedBytes = 200'000;
        settings.gzip = false; // otherwise curl would receive ten times what our client does
        settings.recordCap = 0;
        settings.stalls = stalls;
        if (bad) {
            settings.faults = {"silentAfterAccept:0", "trickle:All:1"};
        }
        add(m_simulator, settings);
        if (consoles > 1) {
            settings.consoles = 1;
            settings.faults.clear();
            add(m_last, settings);
        }
        logOn();
        m_simulator.setRoundTrip(roundTrip);
        if (consoles > 1) {
            m_last.setRoundTrip(roundTrip);
        }
        writeFiles();
    }
    ~Fleet() { StoreStack::shared().close(); }
    Fleet(const Fleet&) = delete;
    Fleet& operator=(const Fleet&) = delete;

    Times ours(bool ownFeedToo = false) const
    {
        const auto start = Clock::now();
        runProgram({fs::read_symlink("/proc/self/exe").string(), "--refresh", m_scratch.file("consoles"),
                    std::to_string(m_ignored), std::to_string(ownFeedToo ? m_roundTrip : 0)});
        Times times;
        std::ifstream(m_scratch.file("consoles.times")) >> times.first >> times.second >> times.feedAlone >>
            times.feedDuringRefresh;
        times.first -= nanoseconds(start.time_since_epoch());
        return times;
    }
    double curl() const
    {
        return runProgram({"curl", "-q", "-K", m_scratch.file("logons")}) +
               runProgram({"curl", "-q", "-K", m_scratch.file("feeds")});
    }

private:
    void add(simulator::SimulatorProcess& simulator, const simulator::Settings& settings)
    {
        simulator.start(settings);
        for (int i = 0; i < simulator.consoleCount(); ++i) {
            m_addresses.push_back(simulator.address(i));
        }
    }

    void logOn()
    {
        std::vector<RXPromise<SessionKey>> logons;
        for (std::size_t i = m_ignored; i < m_addresses.size(); ++i) {
            const auto corvel = std::make_shared<Corvel>();
            corvel->setAddress(m_addresses[i]);
            corvel->setUsername(m_simulator.user());
            corvel->setPassword(m_simulator.password());
            logons.push_back(RESTHandler::sharedInstance().login(corvel, CheckToken::Yes));
        }
        const auto all = RXPromise<SessionKey>::all(logons);
        await(all);
        const auto result = all.result();
        for (const SessionKey& key : result->value()) {
            m_keys.push_back(key.value());
        }
    }

    static void begin(std::ofstream& file)
    {
        file << "parallel\nparallel-immediate\nparallel-max = 300\nno-progress-meter\nsilent\n";
    }
    static void addTransfer(std::ofstream& file, const std::string& url)
    {
        file << "fail\nurl = \"" << url << "\"\noutput = \"/dev/null\"\ninsecure\nhttp1.1\n";
    }

    void writeFiles()
    {
        std::ofstream list(m_scratch.file("consoles"));
        std::ofstream logons(m_scratch.file("logons"));
        std::ofstream feeds(m_scratch.file("feeds"));
        begin(logons);
        begin(feeds);
        for (std::size_t i = 0; i < m_addresses.size(); ++i) {
            const std::string& address = m_addresses[i];
            list << address << ' ' << m_simulator.user() << ' ' << m_simulator.password() << '\n';
            if (i < m_ignored) {
                continue;
            }
            const std::size_t good = i - m_ignored;
            const std::string base = "https://" + address + ":12443/rest/api/";
            logons << (good > 0 ? "next\n" : "");
            addTransfer(logons, base + "web/Logon");
            logons << "request = PUT\ndata = \"<LogonRequest><UserID>" << m_simulator.user() << "</UserID><Password>"
                   << m_simulator.password() << "</Password></LogonRequest>\"\n";
            for (const std::string_view path : bench::feedPaths) {
                feeds << (good > 0 || path != bench::feedPaths.front() ? "next\n" : "");
                addTransfer(feeds, base + std::string(path));
                feeds << "header = \"X-API-Session: " << m_keys[good] << "\"\n";
            }
        }
    }

    const int m_roundTrip;
    const std::size_t m_ignored;
    const ScratchFolder m_scratch;
    simulator::SimulatorProcess m_simulator;
    simulator::SimulatorProcess m_last;
    std::vector<std::string> m_addresses;
    std::vector<std::string> m_keys; ///< only the good consoles'
};

struct Medians {
    Times ours;
    double curl;
};

Medians measure(const Fleet& fleet, int repetitions, bool ownFeedToo)
{
    std::vector<double> first;
    std::vector<double> second;
    std::vector<double> alone;
    std::vector<double> during;
    std::vector<double> curl;
    for (int i = 0; i < repetitions; ++i) {
        if (i % 2 == 0) {
            curl.push_back(fleet.curl());
        }
        const Times times = fleet.ours(ownFeedToo);
        first.push_back(times.first);
        second.push_back(times.second);
        alone.push_back(times.feedAlone);
        during.push_back(times.feedDuringRefresh);
        if (i % 2 != 0) {
            curl.push_back(fleet.curl());
        }
    }
    return {{median(first), median(second), median(alone), median(during)}, median(curl)};
}

/// A network's delay is the same each time. Where it outweighs the work, few repetitions are enough.
int repetitionsFor(int consoles, int roundTrip)
{
    if (roundTrip == 0) {
        return consoles < 500 ? 11 : 5;
    }
    return consoles < 500 && roundTrip < 1000 ? 5 : 3;
}

void measureRows(bench::Rows& rows)
{
    for (const int consoles : {1, 10, 50, 500}) {
        double work = 0;
        for (const int roundTrip : {0, nearby, 100, 300, 1000}) {
            const Fleet fleet(consoles, roundTrip);
            const bool ownFeedToo = consoles == 50 && roundTrip > nearby;
            const Medians medians = measure(fleet, repetitionsFor(consoles, roundTrip), ownFeedToo);
            const std::string what = std::to_string(consoles) + " consoles, " + std::to_string(roundTrip) + " ms";
            rows.add(what + ": first refresh / curl --parallel", medians.ours.first, medians.curl, 1.1);
            if (roundTrip == 0) {
                continue;
            }
            if (roundTrip == nearby) {
                work = medians.ours.second - 2e6 * nearby;
                continue;
            }
            rows.add(what + ": second refresh / two round trips and the work", medians.ours.second,
                     2e6 * roundTrip + work, 1.15);
            if (ownFeedToo) {
                rows.add(what + ": a screen's own feed in a refresh / alone and a round trip",
                         medians.ours.feedDuringRefresh, medians.ours.feedAlone + 1e6 * roundTrip, 1);
            }
        }
    }
    const Fleet fleet(50, 100, true);
    const Medians medians = measure(fleet, 5, false);
    rows.add("50 consoles, 100 ms, one silent, one dripping: the rest / curl of the rest", medians.ours.first,
             medians.curl, 1.1);

    constexpr int stallsOfAHundred = 1;
    const Fleet stalling(50, 1000, false, stallsOfAHundred);
    const Medians stalled = measure(stalling, 3, false);
    rows.add("50 consoles, 1000 ms, one piece of a hundred late: first refresh / curl --parallel", stalled.ours.first,
             stalled.curl, 1.1);
    // A late piece costs two round trips. With this many pieces, some feed is likely to have two late ones.
    rows.add("50 consoles, 1000 ms, one piece of a hundred late: second refresh / two round trips and two late pieces",
             stalled.ours.second, 6e9, 1.15);
}

void refreshThroughNetwork(benchmark::State& state)
{
    const Fleet fleet(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), state.range(2) != 0,
                      static_cast<int>(state.range(3)));
    for ([[maybe_unused]] auto iteration : state) {
        const Times times = fleet.ours(true);
        state.counters["first"] = times.first / 1e6;
        state.counters["second"] = times.second / 1e6;
        state.counters["feedAlone"] = times.feedAlone / 1e6;
        state.counters["feedDuring"] = times.feedDuringRefresh / 1e6;
        state.counters["curl"] = fleet.curl() / 1e6;
    }
}
BENCHMARK(refreshThroughNetwork)
    ->ArgNames({"consoles", "milliseconds", "bad", "stalls"})
    ->ArgsProduct({{1, 10, 50, 500}, {0, nearby, 100, 300, 1000}, {0}, {0}})
    ->Args({50, 100, 1, 0})
    ->Args({50, 1000, 0, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    using namespace lodestar;
    if (argc == 5 && std::string_view(argv[1]) == "--refresh") {
        return refreshTwice(argv[2], std::stoul(argv[3]), std::stoi(argv[4]));
    }
    return bench::run(argc, argv, measureRows);
}

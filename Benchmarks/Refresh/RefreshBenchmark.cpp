// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Benchmarks/Program.h"
#include "Benchmarks/Refresh/ProgramRun.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/FleetSheet.h"
#include "Fleet/Registry.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Platform/UserDefaults.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Support/ScratchFolder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

// Our client and the reference run in turn, each as a whole process with its own start and its own handshakes. This
// program also runs the simulator, and writes addresses, session keys and certificate fingerprints into files for them.

namespace lodestar
{

namespace
{

namespace fs = std::filesystem;

using bench::feedPaths;
using bench::runProgram;
constexpr int lookUps = 200;

struct Console {
    std::string address;
    std::string key;
    std::string fingerprint; ///< in lower-case hexadecimal
};

ServerTrust::Fingerprint fingerprintOf(const std::string& hex)
{
    ServerTrust::Fingerprint leaf{};
    for (std::size_t i = 0; i < leaf.size(); ++i) {
        leaf[i] = static_cast<std::uint8_t>(std::stoi(hex.substr(2 * i, 2), nullptr, 16));
    }
    return leaf;
}

// ---- The measured process, with our client.

std::vector<Console> readConsoles(const std::string& path)
{
    // The store of the measuring process must not be shared.
    StoreStack::shared().setApplicationDocumentsDirectory(fs::path(path).parent_path().string() + "/measured");
    std::vector<Console> consoles;
    std::ifstream file(path);
    for (Console one; file >> one.address >> one.key >> one.fingerprint;) {
        ServerTrust::shared().remember(one.address, 12443, fingerprintOf(one.fingerprint));
        UserDefaults::standard().setString(one.key, one.address);
        consoles.push_back(one);
    }
    return consoles;
}

/// Fetches and counts every console as a refresh does. Writes the memory that this took into a file beside `path`.
int refreshAll(const std::string& path)
{
    const std::vector<Console> consoles = readConsoles(path);
    auto& handler = RESTHandler::sharedInstance();
    std::vector<CorvelRef> corvels;
    std::vector<RXPromise<std::string>> refreshes;
    for (const Console& console : consoles) {
        auto corvel = std::make_shared<Corvel>();
        corvel->setName(console.address);
        corvel->setAddress(console.address);
        corvels.push_back(corvel);
        refreshes.push_back(handler.fetchAllDataForCorvel(corvel, console.key, Urgency::Fleet)
                                .then([corvel, &handler](const std::shared_ptr<const FeedDictionary>& feeds) {
                                    corvel->setRestData(feeds);
                                    return handler.processInformationForCorvel(corvel);
                                }));
    }
    const auto all = RXPromise<std::string>::all(refreshes);
    if (!MainQueue::shared().runUntil([&all] { return all.isFulfilled(); }, std::chrono::minutes(10))) {
        return 1;
    }
    std::size_t retained = 0;
    for (const CorvelRef& corvel : corvels) {
        for (const std::string_view feedPath : feedPaths) {
            const Feed feed = feedOfType(*corvel, feedPath.substr(4));
            if (feed.isNA() || feed.entryCount() == 0) {
                std::fprintf(stderr, "%s has no %.*s\n", corvel->address()->c_str(), static_cast<int>(feedPath.size()),
                             feedPath.data());
                return 1;
            }
            retained += feed.root().documentMemory();
        }
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::ofstream(path + ".memory") << static_cast<double>(usage.ru_maxrss) * 1024 << ' ' << retained << '\n';
    return 0;
}

/// The chain of a refresh as it was before readings were made of it.
RXPromise<std::string> fetchWithoutReading(const CorvelRef& corvel)
{
    auto& handler = RESTHandler::sharedInstance();
    return handler.login(corvel, CheckToken::Yes, Urgency::Fleet)
        .then([corvel, &handler](const SessionKey& key) {
            return handler.fetchAllDataForCorvel(corvel, key, Urgency::Fleet);
        })
        .then([corvel, &handler](const std::shared_ptr<const FeedDictionary>& feeds) {
            corvel->setRestData(feeds);
            return handler.processInformationForCorvel(corvel);
        });
}

/// Refreshes every console from the session check on, with or without readings.
int refreshChains(const std::string& path, bool withReadings)
{
    std::vector<CorvelRef> corvels;
    std::vector<RXPromise<std::string>> refreshes;
    for (const Console& console : readConsoles(path)) {
        auto corvel = std::make_shared<Corvel>();
        corvel->setName(console.address);
        corvel->setAddress(console.address);
        refreshes.push_back(withReadings ? fetchInventory(corvel, Urgency::Fleet) : fetchWithoutReading(corvel));
        corvels.push_back(std::move(corvel));
    }
    const auto all = RXPromise<std::string>::all(refreshes);
    MainQueue::shared().runUntil([&all] { return !all.isPending(); }, std::chrono::minutes(10));
    return all.isFulfilled() ? 0 : 1;
}

/// Verifies every console as a fleet sheet that names them all does, from the logon on.
int verifyAll(const std::string& path)
{
    const simulator::Settings account;
    FleetSheet sheet;
    for (const Console& console : readConsoles(path)) {
        UserDefaults::standard().removeObjectForKey(console.address);
        sheet.rows.push_back(
            {.line = sheet.rows.size() + 2, .name = console.address, .address = console.address, .user = account.user});
    }
    const auto fleet =
        std::make_shared<FleetImport>(sheet, std::map<std::string, std::string>{{account.user, account.password}});
    fleet->verify(nullptr);
    MainQueue::shared().runUntil([&fleet] { return !fleet->isRunning(); }, std::chrono::minutes(10));
    return fleet->verified() == sheet.rows.size() ? 0 : 1;
}

/// Looks a value up again and again on the calling thread, as a list does for its rows.
int lookUpAll(const std::string& path, const std::string& link)
{
    readConsoles(path);
    Corvel corvel;
    corvel.setAddress(link.substr(8, link.find(':', 8) - 8));
    for (int i = 0; i < lookUps; ++i) {
        if (!RESTHandler::sharedInstance().fetchDataFromAtomLink(link, corvel)) {
            return 1;
        }
    }
    return 0;
}

// ---- The measuring process, with simulator and reference.

/// A fleet with a session on each console, and the files that the measured processes read.
class Fleet
{
public:
    explicit Fleet(int consoles)
    {
        fs::create_directory(m_scratch.file("measured"));
        StoreStack::shared().setApplicationDocumentsDirectory(m_scratch.path());
        simulator::Settings settings;
        settings.consoles = consoles;
        settings.systems = 40;
        settings.vios = 80;
        settings.events = 120;
        settings.groups = 120;
        settings.feedBytes = 200'000;
        settings.gzip = false; // otherwise curl would receive ten times what our client does
        settings.recordCap = 0;
        m_simulator.start(settings);
        logOn();
        writeFiles();
    }
    ~Fleet() { StoreStack::shared().close(); }
    Fleet(const Fleet&) = delete;
    Fleet& operator=(const Fleet&) = delete;

    double ours(const std::string& mode) const
    {
        return runProgram({fs::read_symlink("/proc/self/exe").string(), mode, m_scratch.file("consoles"), m_link});
    }
    double curl(const std::string& configuration) const
    {
        return runProgram({"curl", "-q", "-K", m_scratch.file(configuration)});
    }
    /// The last refresh's peak resident memory and the memory of its feeds, in bytes.
    std::pair<double, double> memory() const
    {
        std::pair<double, double> bytes{0, 0};
        std::ifstream(m_scratch.file("consoles.memory")) >> bytes.first >> bytes.second;
        return bytes;
    }

private:
    void logOn()
    {
        std::vector<RXPromise<SessionKey>> logons;
        for (int i = 0; i < m_simulator.consoleCount(); ++i) {
            auto corvel = std::make_shared<Corvel>();
            corvel->setAddress(m_simulator.address(i));
            corvel->setUsername(m_simulator.user());
            corvel->setPassword(m_simulator.password());
            logons.push_back(RESTHandler::sharedInstance().login(corvel, CheckToken::Yes));
        }
        const auto all = RXPromise<SessionKey>::all(logons);
        MainQueue::shared().runUntil([&all] { return !all.isPending(); }, std::chrono::minutes(5));
        const auto result = all.result();
        if (!result || !*result) {
            throw std::runtime_error("a console could not be logged on to");
        }
        for (std::size_t i = 0; i < result->value().size(); ++i) {
            const int console = static_cast<int>(i);
            m_consoles.push_back({m_simulator.address(console), result->value()[i].value(),
                                  m_simulator.certificateFingerprint(console)});
        }
    }

    static void addTransfer(std::ofstream& file, const std::string& url, const Console& console)
    {
        file << "url = \"" << url << "\"\noutput = \"/dev/null\"\nheader = \"X-API-Session: " << console.key
             << "\"\ninsecure\nhttp1.1\n";
    }

    void writeFiles()
    {
        std::ofstream list(m_scratch.file("consoles"));
        std::ofstream feeds(m_scratch.file("feeds"));
        feeds << "parallel\nno-progress-meter\nsilent\nfail\n";
        const char* separator = "";
        for (const Console& console : m_consoles) {
            list << console.address << ' ' << console.key << ' ' << console.fingerprint << '\n';
            for (const std::string_view path : feedPaths) {
                feeds << std::exchange(separator, "next\nfail\n");
                addTransfer(feeds, "https://" + console.address + ":12443/rest/api/" + std::string(path), console);
            }
        }
        m_link = "https://" + m_consoles[0].address + ":12443/rest/api/uom/LogicalPartition/none/quick/PartitionState";
        std::ofstream single(m_scratch.file("lookups"));
        single << "no-progress-meter\nsilent\n";
        for (int i = 0; i < lookUps; ++i) {
            addTransfer(single, m_link, m_consoles[0]);
        }
    }

    const ScratchFolder m_scratch;
    simulator::SimulatorProcess m_simulator;
    std::vector<Console> m_consoles;
    std::string m_link;
};

void measureRows(bench::Rows& rows)
{
    for (const int consoles : {50, 500}) {
        const Fleet fleet(consoles);
        double excess = 0;
        const auto medians = bench::medianInterleaved(
            [&] {
                const double time = fleet.ours("--refresh");
                const auto [resident, retained] = fleet.memory();
                excess = std::max(excess, resident - retained);
                return time;
            },
            [&] { return fleet.curl("feeds"); });
        const std::string what = "refresh of " + std::to_string(consoles) + " consoles x 6 feeds";
        rows.add(what + " / curl --parallel", medians.ours, medians.reference, 1.15);
        rows.add(what + ": memory beyond the feeds / 150 MB", excess / 1e6, 150, 1, "MB");
        if (consoles == 500) {
            const auto checks = bench::medianInterleaved([&] { return fleet.ours("--verify"); },
                                                         [&] { return fleet.ours("--with-readings"); });
            rows.add("fleet sheet of 500 consoles verified / their refresh", checks.ours, checks.reference, 1.15);
        }
        if (consoles == 50) {
            const auto chains = bench::medianInterleaved([&] { return fleet.ours("--with-readings"); },
                                                         [&] { return fleet.ours("--without-readings"); });
            rows.add(what + ", with readings / without", chains.ours, chains.reference, 1.02);
            const auto lookUpTimes = bench::medianInterleaved([&] { return fleet.ours("--look-ups"); },
                                                              [&] { return fleet.curl("lookups"); });
            rows.add("200 blocking look-ups / curl on one connection", lookUpTimes.ours, lookUpTimes.reference, 1.3);
        }
    }
}

void refreshOnce(benchmark::State& state)
{
    const Fleet fleet(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        fleet.ours("--refresh");
    }
}
BENCHMARK(refreshOnce)->Arg(50)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    using namespace lodestar;
    if (argc == 4 && std::string_view(argv[1]) == "--refresh") {
        return refreshAll(argv[2]);
    }
    if (argc == 4 && std::string_view(argv[1]).ends_with("-readings")) {
        return refreshChains(argv[2], std::string_view(argv[1]) == "--with-readings");
    }
    if (argc == 4 && std::string_view(argv[1]) == "--verify") {
        return verifyAll(argv[2]);
    }
    if (argc == 4 && std::string_view(argv[1]) == "--look-ups") {
        return lookUpAll(argv[2], argv[3]);
    }
    return bench::run(argc, argv, measureRows);
}

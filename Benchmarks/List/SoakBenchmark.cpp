// SPDX-License-Identifier: Apache-2.0
#include "Benchmarks/List/FleetOnScreen.h"
#include "Benchmarks/List/ScreenProgram.h"
#include "Tests/Support/ProcessMemory.h"

#include <QProcess>

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

// Measures what shows only in the long run: a very large fleet, and a day's pulls. Each is measured in a process of its
// own, whose memory is then used by nothing else.

namespace lodestar
{

namespace
{

constexpr int warmUp = 600;
constexpr int pulls = 10 * 3600 / 5; ///< ten hours' worth at one every five seconds, but without waiting between
constexpr int pullsBetweenSamples = 20;

/// The two numbers that a measured process prints.
struct Figures {
    double first = 0;
    double second = 0;
};

/// The first refresh of so many consoles, some of which refuse the logon, cut a feed or damage a feed. The figures are
/// the peak memory per console and the seconds.
Figures refreshOfFleet(int consoles)
{
    simulator::Settings settings;
    settings.consoles = consoles;
    settings.feedBytes = 20'000;
    settings.recordCap = 0;
    int refusing = 0;
    for (int i = 0; i < consoles; i += 10) {
        const std::string console = ":" + std::to_string(i);
        switch (i / 10 % 3) {
        case 0:
            settings.faults.push_back("refuseLogon" + console);
            ++refusing;
            break;
        case 1:
            settings.faults.push_back("cutBody:ManagedSystem" + console);
            break;
        default:
            settings.faults.push_back("malformedFeed:LogicalPartition" + console);
        }
    }
    bench::FleetOnScreen fleet(settings);
    const double before = memory("VmRSS");
    const bench::Refresh refresh = fleet.refresh();
    if (refresh.online != consoles - refusing) {
        throw std::runtime_error(std::to_string(refresh.online) + " consoles are online, of " +
                                 std::to_string(consoles - refusing) + " that answer");
    }
    return {(memory("VmHWM") - before) / consoles, refresh.nanoseconds / 1e9};
}

/// Resident memory after the warm-up and at the end. All the while some consoles fail in various ways and recover.
Figures memoryOfPulls()
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
    bench::FleetOnScreen fleet({.consoles = 3, .feedBytes = 20'000, .recordCap = 0});
    std::vector<double> early;
    std::vector<double> late;
    for (int pull = 0; pull < pulls; ++pull) {
        if (pull % 10 == 0) {
            fleet.simulator().setFault(faults.at(static_cast<std::size_t>(pull / 10) % faults.size()));
        } else if (pull % 10 == 5) {
            fleet.simulator().clearFaults();
        }
        fleet.refresh();
        if (pull % pullsBetweenSamples == 0 && pull >= warmUp) {
            if (pull < 2 * warmUp) {
                early.push_back(memory("VmRSS"));
            } else if (pull >= pulls - warmUp) {
                late.push_back(memory("VmRSS"));
            }
        }
    }
    return {bench::median(early), bench::median(late)};
}

/// The figures that this program prints when it is run in the mode.
Figures measured(const QStringList& mode)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(), mode);
    constexpr int limit = 1'800'000; // milliseconds
    bench::require(process.waitForFinished(limit) && process.exitStatus() == QProcess::NormalExit &&
                       process.exitCode() == 0,
                   "a measured process failed");
    // The transport prints lines of its own before the figures.
    const QList<QByteArray> words = process.readAllStandardOutput().simplified().split(' ');
    return {words.at(words.size() - 2).toDouble(), words.back().toDouble()};
}

void measureRows(bench::Rows& rows)
{
    const Figures few = measured({"--fleet", "1000"});
    const Figures many = measured({"--fleet", "5000"});
    rows.add("5,000 consoles, all settled: peak memory of each / of 1,000", many.first, few.first, 1.1, "bytes");
    rows.add("5,000 consoles, all settled: time of each / of 1,000", many.second / 5000 * 1e3, few.second / 1000 * 1e3,
             1.5, "ms");
    const Figures day = measured({"--pulls", "10h"});
    rows.add("10 hours of pulls: resident memory at their end / after 600", day.second / 1e6, day.first / 1e6, 1.05,
             "MB");
}

int tell(const Figures& figures)
{
    std::printf("\n%.17g %.17g\n", figures.first, figures.second);
    return 0;
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
try {
    using namespace lodestar;
    const bench::Screen screen(argc, argv);
    const std::string_view mode = argc == 3 ? argv[1] : "";
    if (mode == "--fleet") {
        return tell(refreshOfFleet(std::stoi(argv[2])));
    }
    if (mode == "--pulls") {
        return tell(memoryOfPulls());
    }
    return bench::run(argc, argv, measureRows);
} catch (const std::exception& error) {
    std::fprintf(stderr, "SoakBenchmark: %s\n", error.what());
    return 1;
}

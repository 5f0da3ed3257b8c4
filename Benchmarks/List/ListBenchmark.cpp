// SPDX-License-Identifier: Apache-2.0
#include "Benchmarks/List/FleetOnScreen.h"
#include "Benchmarks/List/ScreenProgram.h"

// Shows the console list while every console of a fleet is refreshed. The main thread draws the frames, so whatever
// holds that thread up shows in them.

namespace lodestar
{

namespace
{

/// Consoles with six feeds of 200 KB each, logged on to and fetched once.
class LargeFleet
{
public:
    explicit LargeFleet(int consoles) : m_fleet(settings(consoles)) { refresh(); }

    void openList() { m_fleet.openList(); }
    void openDashboard() { m_fleet.openDashboard(); }
    void openAttention() { m_fleet.openAttention(); }
    /// Milliseconds: the median of several refreshes' longest gaps.
    double longestGap()
    {
        constexpr int repetitions = 11;
        std::vector<double> gaps;
        for (int i = 0; i < repetitions; ++i) {
            gaps.push_back(refresh().longestGap);
        }
        return bench::median(gaps);
    }
    bench::Refresh refresh()
    {
        const bench::Refresh result = m_fleet.refresh();
        bench::require(result.online == m_fleet.simulator().consoleCount(), "a console did not come");
        return result;
    }

private:
    static simulator::Settings settings(int consoles)
    {
        simulator::Settings settings;
        settings.consoles = consoles;
        settings.systems = 40;
        settings.vios = 80;
        settings.events = 120;
        settings.groups = 120;
        settings.feedBytes = 200'000;
        settings.recordCap = 0;
        return settings;
    }

    bench::FleetOnScreen m_fleet;
};

void measureRows(bench::Rows& rows)
{
    for (const auto& [consoles, goal] : {std::pair{50, 16.0}, std::pair{500, 100.0}}) {
        LargeFleet fleet(consoles);
        const std::string what = "refresh of " + std::to_string(consoles) + " consoles on screen";
        rows.add(what + ": longest gap of the main thread", fleet.longestGap(), 1, goal, "ms");
        fleet.openAttention();
        rows.add(what + ", Attention open: longest gap of the main thread", fleet.longestGap(), 1, 50, "ms");
        fleet.openList();
        if (consoles == 50) {
            const auto times = bench::medianInterleaved(
                [&] {
                    fleet.openDashboard();
                    return fleet.refresh().nanoseconds;
                },
                [&] {
                    fleet.openList();
                    return fleet.refresh().nanoseconds;
                });
            rows.add(what + ": dashboard open / closed", times.ours, times.reference, 1.25);
        }
    }
}

void refreshOnScreen(benchmark::State& state)
{
    LargeFleet fleet(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        fleet.refresh();
    }
}
BENCHMARK(refreshOnScreen)->Arg(50)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    const lodestar::bench::Screen screen(argc, argv);
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

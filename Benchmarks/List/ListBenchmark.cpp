// SPDX-License-Identifier: Apache-2.0
#include "Benchmarks/Rows.h"
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/MainLoop.h"
#include "Platform/UserDefaults.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Scenes/SceneStage.h"
#include "Views/Common/Registry.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <stdexcept>

// The console list on a screen while every console of a fleet is refreshed: the frames are drawn by the main thread, so
// what holds it up is seen here.

namespace lodestar
{

namespace
{

constexpr int refreshLimit = 300'000; // milliseconds; beyond it something hangs
constexpr int tick = 1;               // milliseconds

struct Refresh {
    double nanoseconds = 0;
    double longestGap = 0; ///< milliseconds in which the main thread did not come back to its loop
};

/// Consoles of six feeds of 200 KB, their list, and the window that shows it.
class FleetOnScreen
{
public:
    explicit FleetOnScreen(int consoles)
    {
        simulator::Settings settings;
        settings.consoles = consoles;
        settings.systems = 40;
        settings.vios = 80;
        settings.events = 120;
        settings.groups = 120;
        settings.feedBytes = 200'000;
        settings.recordCap = 0;
        m_simulator.start(settings);
        m_stage.show({390, 844}, {});
        for (int i = 0; i < consoles; ++i) {
            const CorvelRef corvel = insertNewCorvel();
            corvel->setName("Console " + std::to_string(i));
            corvel->setAddress(m_simulator.address(i));
            corvel->setUsername(m_simulator.user());
            corvel->setPassword(m_simulator.password());
            RESTHandler::sharedInstance().addCorvel(corvel);
        }
        m_stage.list().tableView()->setHidden(false);
        m_stage.list().tableView()->reloadData();
        refresh(); // logs on, and warms up
    }

    void openDashboard() { m_stage.tabs().setSelectedIndex(1); }
    void closeDashboard() { m_stage.tabs().setSelectedIndex(0); }

    Refresh refresh()
    {
        Refresh result;
        QEventLoop loop;
        QElapsedTimer sinceStart;
        QElapsedTimer sinceTick;
        QTimer ticks;
        ticks.setTimerType(Qt::PreciseTimer);
        QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
            const auto gap = static_cast<double>(sinceTick.nsecsElapsed()) / 1e6 - tick;
            result.longestGap = std::max(result.longestGap, gap);
            sinceTick.restart();
            if (isDone() || sinceStart.elapsed() > refreshLimit) {
                loop.quit();
            }
        });
        sinceStart.start();
        sinceTick.start();
        ticks.start(tick);
        m_stage.list().refresh();
        loop.exec();
        result.nanoseconds = static_cast<double>(sinceStart.nsecsElapsed());
        requireOnline();
        return result;
    }

private:
    static bool isDone()
    {
        const auto& consoles = RESTHandler::sharedInstance().corvelList();
        return std::all_of(consoles.begin(), consoles.end(),
                           [](const CorvelRef& corvel) { return corvel->completedFetch.load(); });
    }
    static void requireOnline()
    {
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            if (!corvel->completedFetch || !corvel->isOnline) {
                throw std::runtime_error(corvel->address().value_or("") + " did not come");
            }
        }
    }

    simulator::SimulatorProcess m_simulator;
    scenes::SceneStage m_stage;
};

void measureRows(bench::Rows& rows)
{
    constexpr int repetitions = 11;
    for (const auto& [consoles, goal] : {std::pair{50, 16.0}, std::pair{500, 100.0}}) {
        FleetOnScreen fleet(consoles);
        std::vector<double> gaps;
        for (int i = 0; i < repetitions; ++i) {
            gaps.push_back(fleet.refresh().longestGap);
        }
        const std::string what = "refresh of " + std::to_string(consoles) + " consoles on screen";
        rows.add(what + ": longest gap of the main thread", bench::median(gaps), 1, goal, "ms");
        if (consoles == 50) {
            const auto times = bench::medianInterleaved(
                [&] {
                    fleet.openDashboard();
                    return fleet.refresh().nanoseconds;
                },
                [&] {
                    fleet.closeDashboard();
                    return fleet.refresh().nanoseconds;
                });
            rows.add(what + ": dashboard open / closed", times.ours, times.reference, 1.25);
        }
    }
}

void refreshOnScreen(benchmark::State& state)
{
    FleetOnScreen fleet(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        fleet.refresh();
    }
}
BENCHMARK(refreshOnScreen)->Arg(50)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    using namespace lodestar;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    const MainLoop mainLoop;
    bench::Rows rows(argc, argv);
    if (rows.requested()) {
        measureRows(rows);
        return rows.write();
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

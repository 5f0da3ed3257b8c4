// SPDX-License-Identifier: Apache-2.0
#include "Benchmarks/List/ScreenProgram.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/Registry.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/UserDefaults.h"
#include "Simulator/SimulatorProcess.h"
#include "Tools/Stage/SceneStage.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"

#include <QElapsedTimer>
#include <fmt/format.h>

#include <cstring>
#include <stdexcept>

// Measures long lists on a screen: a frame of scrolling against one of a short list, a search's keystroke against
// reading the names once, and the number of connections that a list of look-ups takes.

namespace lodestar
{

namespace
{

constexpr int shortList = 100;
constexpr int longList = 100'000;
constexpr double frame = 16.0; // milliseconds

std::string nameOf(int row)
{
    return fmt::format("Harbour-{:06}-SN{:05X}", row, row * 7919 % 0xFFFFF);
}

CorvelRef consoleOfSystems(int systems)
{
    std::string xml = "<feed>";
    for (int row = 0; row < systems; ++row) {
        fmt::format_to(std::back_inserter(xml),
                       "<entry><published>2026-07-03T10:25:00.000Z</published><content><ManagedSystem><SystemName>{}"
                       "</SystemName><State>{}</State><PhysicalSystemAttentionLEDState>{}"
                       "</PhysicalSystemAttentionLEDState></ManagedSystem></content></entry>",
                       nameOf(row), row % 3 == 0 ? "error" : "operating", row % 5 == 0);
    }
    return scenes::demoConsole({{"ManagedSystem", xml + "</feed>"}});
}

/// A console's list of managed systems, which stands in a window until this object is destroyed.
class ListOnScreen
{
public:
    ListOnScreen(scenes::SceneStage& stage, const CorvelRef& corvel, int rows)
        : m_stage(stage), m_list(*stage.open<MSListViewController>(Scenes::managedSystemsView, corvel))
    {
        bench::require(
            stage.waitFor([&] { return !m_list.tableView()->isHidden() && m_list.tableView()->rows() == rows; }),
            "the list did not come");
        stage.settle();
        for (QQuickItem* item : stage.items(QStringLiteral("QQuickListView"))) {
            if (item->property("count").toInt() == rows) {
                m_flickable = item;
            }
        }
        bench::require(m_flickable != nullptr, "no list is drawn");
    }
    ~ListOnScreen()
    {
        m_list.navigationController()->popViewController(Animated::No);
        m_stage.settle();
    }
    ListOnScreen(const ListOnScreen&) = delete;
    ListOnScreen& operator=(const ListOnScreen&) = delete;

    MSListViewController& controller() const { return m_list; }

    /// Nanoseconds of the processor per frame: the mean of the list's head, middle and end. Not the median: every
    /// second frame brings a row, so a median would belong to neither kind of frame. Long and short lists are scrolled
    /// alike.
    double scroll() const { return (scrollFrom(0) + scrollFrom(0.5) + scrollFrom(1)) / 3; }

private:
    static constexpr int steps = 120;
    static constexpr double step = 33; // points

    /// Goes to a place in the list, from 0 at its head to 1 at its end, and scrolls some screens down and up again from
    /// there, as fast as a flick. The end leaves room for that.
    double scrollFrom(double place) const
    {
        const double height = m_flickable->property("contentHeight").toDouble();
        const int rows = m_flickable->property("count").toInt();
        const double room = height - m_flickable->height() - steps * step;
        const int row = static_cast<int>(place * room / height * rows);
        QMetaObject::invokeMethod(m_flickable, "positionViewAtIndex", Q_ARG(int, row), Q_ARG(int, 0));
        const double start = m_flickable->property("contentY").toDouble();
        drawFrame();
        int frames = 0;
        const auto counted = QObject::connect(&m_stage.window(), &QQuickWindow::frameSwapped, [&] { ++frames; });
        double total = 0;
        for (int i = 1; i <= 2 * steps; ++i) {
            const double before = bench::processorTime();
            m_flickable->setProperty("contentY", start + step * (i <= steps ? i : 2 * steps - i));
            drawFrame();
            total += bench::processorTime() - before;
        }
        QObject::disconnect(counted);
        bench::require(frames == 2 * steps, "a frame was not drawn");
        bench::require(m_flickable->property("contentY").toDouble() == start, "the list did not scroll");
        return total / frames;
    }

    /// Polishes and draws what changed, as when the window asks for its next frame. Also frees the rows that were
    /// scrolled away, which every later frame would move along otherwise.
    void drawFrame() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&m_stage.window(), &update);
    }

    scenes::SceneStage& m_stage;
    MSListViewController& m_list;
    QQuickItem* m_flickable = nullptr;
};

/// How many of the names contain the text. A line feed ends each name.
std::size_t plainSearch(const std::string& names, std::string_view text)
{
    std::size_t found = 0;
    const char* at = names.data();
    const char* const end = at + names.size();
    while (at != end) {
        const void* const hit = ::memmem(at, static_cast<std::size_t>(end - at), text.data(), text.size());
        if (hit == nullptr) {
            break;
        }
        ++found;
        at = static_cast<const char*>(hit);
        at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))) + 1;
    }
    return found;
}

void measureScrolling(bench::Rows& rows, scenes::SceneStage& stage, const CorvelRef& corvel)
{
    // The two lists are opened seconds apart, and a machine's speed changes meanwhile: hence many repetitions.
    constexpr std::size_t repetitions = 31;
    const CorvelRef few = consoleOfSystems(shortList);
    const auto times = bench::medianInterleaved(
        [&] {
            const ListOnScreen list(stage, corvel, longList);
            return list.scroll();
        },
        [&] {
            const ListOnScreen list(stage, few, shortList);
            return list.scroll();
        },
        repetitions);
    rows.add("list of 100,000 rows, a scrolled frame", times.ours, times.reference, 1.1);
}

void measureSearch(bench::Rows& rows, scenes::SceneStage& stage, const CorvelRef& corvel)
{
    const ListOnScreen list(stage, corvel, longList);
    MSListViewController& controller = list.controller();
    std::string names;
    for (int row = 0; row < longList; ++row) {
        names += nameOf(row) + '\n';
    }
    for (const char* const text : {"Harbour-09", "SN0", "no such system", "r"}) {
        const QString typed = QString::fromLatin1(text);
        const auto times = bench::medianInterleaved([&] { controller.shouldReloadTableForSearchString(typed); },
                                                    [&] { benchmark::DoNotOptimize(plainSearch(names, text)); });
        const std::size_t found = plainSearch(names, text);
        bench::require(controller.filteredMSList().size() == found, "the searches do not agree");
        rows.add(fmt::format("search of 100,000 names, {} found", found), times.ours, times.reference, 3);
    }
    controller.showSearchBar();
    std::vector<double> keystrokes;
    for (int i = 0; i < 11; ++i) {
        controller.searchBar()->setText(QStringLiteral("harbour-0"));
        stage.settle(60);
        QElapsedTimer timer;
        timer.start();
        controller.searchBar()->setText(QStringLiteral("harbour-00"));
        keystrokes.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        bench::require(controller.searchResultsTableView()->rows() == 10'000, "the results were not listed");
    }
    rows.add("a keystroke among 100,000 rows, its results listed", bench::median(keystrokes), 1, frame, "ms");
    controller.searchBar()->cancel();
}

void measureHandshakes(bench::Rows& rows, scenes::SceneStage& stage)
{
    constexpr int systems = 50;
    constexpr int partitions = 4;
    simulator::SimulatorProcess fleet({.systems = systems, .partitions = partitions});
    const auto corvel = std::make_shared<Corvel>();
    corvel->setAddress(fleet.address());
    corvel->setUsername(fleet.user());
    corvel->setPassword(fleet.password());
    const auto fetched = fetchInventory(corvel);
    const auto isDone = [&] { return fetched.isFulfilled(); };
    bench::require(stage.waitFor(isDone), "the console was not fetched");
    corvel->completedFetch = true;
    const auto before = fleet.statistics();
    const auto* const list =
        stage.open<LPListViewController>(Scenes::logicalPartitionsView, {.corvel = corvel, .partitionName = {}});
    int listed = 0;
    const auto isListed = [&] {
        listed = 0;
        for (std::size_t group = 0; group < list->partitions().groupCount(); ++group) {
            listed += static_cast<int>(list->partitions().elementsAt(group).size());
        }
        return listed > 0;
    };
    bench::require(stage.waitFor(isListed) && listed == systems * partitions, "the partitions were not listed");
    const auto after = fleet.statistics();
    rows.add("handshakes of a list's 200 look-ups", static_cast<double>(after.handshakes - before.handshakes), 1, 1,
             "");
    list->navigationController()->popViewController(Animated::No);
}

void measureRows(bench::Rows& rows)
{
    scenes::SceneStage stage;
    stage.show({390, 844}, {});
    const CorvelRef corvel = consoleOfSystems(longList);
    measureScrolling(rows, stage, corvel);
    measureSearch(rows, stage, corvel);
    measureHandshakes(rows, stage);
}

/// Makes the rows from the stored feed on the main thread, as after a fetch.
void makeList(benchmark::State& state)
{
    const scenes::SceneStage stage;
    const CorvelRef corvel = consoleOfSystems(longList);
    for ([[maybe_unused]] auto iteration : state) {
        const auto list = makeController<MSListViewController>();
        list->setCorvel(corvel);
        list->createMSList();
    }
}
BENCHMARK(makeList)->Unit(benchmark::kMillisecond);

/// The first search in a list that was made on the main thread, which also reads the names.
void searchFirst(benchmark::State& state)
{
    const scenes::SceneStage stage;
    const CorvelRef corvel = consoleOfSystems(longList);
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        const auto list = makeController<MSListViewController>();
        list->setCorvel(corvel);
        list->createMSList();
        state.ResumeTiming();
        list->shouldReloadTableForSearchString(QStringLiteral("harbour-09"));
    }
}
BENCHMARK(searchFirst)->Unit(benchmark::kMillisecond);

/// Logs a line that goes only to the file, from deep in the stack, as when a list is made.
[[gnu::noinline]] void logLines(benchmark::State& state, int depth)
{
    if (depth > 0) {
        logLines(state, depth - 1);
        benchmark::ClobberMemory(); // prevents a tail call
        return;
    }
    for ([[maybe_unused]] auto iteration : state) {
        LODESTAR_LOG("Benchmarks/List/ScrollBenchmark", "logLines", "Fetching partition");
        LODESTAR_LOG("Benchmarks/List/ScrollBenchmark", "logLines", "Fetching stored link");
    }
}

void twoLogLines(benchmark::State& state)
{
    const QTemporaryDir folder;
    bench::require(VireoLogger::openLogFolder(folder.path().toStdString()), "no log folder");
    logLines(state, static_cast<int>(state.range(0)));
}
BENCHMARK(twoLogLines)->Arg(5)->Arg(40);

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    const lodestar::bench::Screen screen(argc, argv);
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

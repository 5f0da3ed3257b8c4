// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Csv.h"
#include "Kit/Core/FileSaver.h"
#include "Simulator/Metrics.h"
#include "Tests/Views/ListFixture.h"
#include "Views/ManagedSystems/PCM/LargeChartViewController.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace lodestar::testing
{
namespace
{

using std::chrono::seconds;

constexpr MetricsDate eight{std::chrono::sys_days(std::chrono::year(2026) / 3 / 12) + std::chrono::hours(8)};

/// Samples three minutes apart, whose allocated rises by one and whose used falls by one each time.
MetricsTimeline timeline(int count)
{
    MetricsTimeline made;
    for (int i = 0; i < count; ++i) {
        made.moments.push_back({eight + seconds(180 * i), {16, 3.0 + i, 8.25 - i}});
    }
    return made;
}

class LargeChartTest : public ListTest
{
protected:
    LargeChartTest() { setZone("EAST-9"); }
    ~LargeChartTest() override { FileSaver::answerWith(nullptr); }

    std::shared_ptr<LargeChartViewController> openChart(const MetricsTimeline& processors)
    {
        auto screen = makeController<LargeChartViewController>();
        screen->setSysName("helios-01");
        screen->setMetrics(std::make_shared<const PerformanceMetrics>(PerformanceMetrics{processors, timeline(2)}));
        screen->setSegment(MetricsSegment::Processors);
        return push(screen);
    }
    /// What is drawn: bars and lines by name.
    static QString drawn(LargeChartViewController& screen)
    {
        QStringList names;
        for (const BarChartDataSet& set : screen.chartView()->data().barDataSets) {
            names << "bars " + set.label;
        }
        for (const LineChartDataSet& set : screen.chartView()->data().lineDataSets) {
            names << set.label;
        }
        return names.join(", ");
    }
    /// Chooses from the share menu and returns the file that was written under the suggested name.
    QByteArray saved(LargeChartViewController& screen, int choice)
    {
        FileSaver::answerWith([this](const QString& name) {
            m_name = name;
            return m_folder.filePath(name);
        });
        screen.share();
        screen.shareMenu()->choose(choice);
        QFile file(m_folder.filePath(m_name));
        EXPECT_TRUE(runUntil([&] { return file.exists(); }));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    QString m_name;
};

TEST_F(LargeChartTest, PerformanceScreenSumsUpAndHandsOnWhatItFetched)
{
    registerScenes(Scenes::largeChartView);
    demoFeeds["ManagedSystem.json"] =
        simulator::writeMetricsDocument(simulator::makeInventory({}, 0).systems.front(), {.nulls = true});
    auto screen = makeController<PCMViewController>();
    screen->setCorvel(addCorvel("Demo", "127.0.0.1", true));
    screen->setSysName("helios-01");
    screen->setSystemID("any");
    push(screen);
    EXPECT_FALSE(screen->hasLargeChart());
    ASSERT_TRUE(runUntil([&] { return !screen->chartView()->isHidden(); }));
    ASSERT_EQ(screen->summary().size(), 3);
    const PerformanceSummaryRow total = screen->summary().at(0);
    EXPECT_EQ(total.name, "Total");
    EXPECT_EQ(total.values, QStringList({"16.00", "16.00", "16.00", "16.00"}));
    EXPECT_EQ(total.times, QStringList({"all along", "", "all along", "18:41"}));
    EXPECT_EQ(total.spoken, "Total, 16.00 all along");
    EXPECT_EQ(screen->summary().at(2).values.last(), "6.50");
    EXPECT_THAT(screen->leftOut().toStdString(), MatchesRegex("[0-9]+ samples had no values and are left out"));

    screen->selectedSegmentedIndex(1);
    ASSERT_TRUE(runUntil([&] { return !screen->chartView()->isHidden(); }));
    EXPECT_EQ(screen->summary().at(0).values.first(), "262.14");
    screen->openLargeChart();
    EXPECT_EQ(openedScene, "largeChartView");
    const auto given = input<LargeChartInput>();
    EXPECT_EQ(given.sysName, "helios-01");
    EXPECT_EQ(given.segment, MetricsSegment::Memory);
    EXPECT_EQ(given.metrics->processors.moments.back().figures.used, 6.5);

    // Samples without a time can be summed up, but not charted over time; a failure leaves nothing.
    const auto document = MetricsDocument::parse(
        R"([{"serverUtil":{"memory":{"totalMem":[1000],"availableMem":[500],"assignedMemToLpars":[400]}}}])");
    screen->calculateGraphValuesFromJSON(document.value().root());
    EXPECT_EQ(screen->summary().at(1).times, QStringList({"all along", "", "all along", ""}));
    EXPECT_FALSE(screen->hasLargeChart());
    demoFeeds["ManagedSystem.json"] = "{}";
    screen->selectedSegmentedIndex(0);
    ASSERT_TRUE(runUntil([&] { return !screen->chartView()->isHidden(); }));
    EXPECT_TRUE(screen->summary().isEmpty());
}

TEST_F(LargeChartTest, SeriesAreReadSwitchedAndDrawnAsBars)
{
    MetricsTimeline samples = timeline(8);
    samples.withoutValues = 1;
    samples.moments.push_back({std::nullopt, {16, 1, 1}});
    const auto screen = openChart(samples);
    EXPECT_EQ(header(*screen), "helios-01/12 Mar 2026, 17:00 - 12 Mar 2026, 17:21");
    EXPECT_EQ(drawn(*screen), "Total Processors, Processors Allocated, Processors Used");
    EXPECT_EQ(screen->leftOut(),
              "1 sample had no values and is left out\n1 sample had no time and is left out of the chart");
    EXPECT_EQ(screen->summary().at(2).spoken, "Used, lowest 1.00, mean 4.33, highest 8.25 at 17:00, last 1.00");

    PlotChartView& view = *screen->chartView();
    view.setReadIndex(200);
    EXPECT_EQ(screen->readTime(), "17:03");
    EXPECT_EQ(screen->readValues(), QStringList({"16.00", "4.00", "7.25"}));
    EXPECT_EQ(screen->readText(), "17:03, total 16, allocated 4, used 7.25");
    view.setViewport({0.25, 0.5, 0.5, 0.5});
    screen->toggleSeries(0);
    EXPECT_EQ(drawn(*screen), "Processors Allocated, Processors Used");
    EXPECT_EQ(view.viewport(), (PlotViewport{0.25, 0, 0.5, 1})) << "the time in view stays";
    EXPECT_EQ(screen->readText(), "");
    view.setReadIndex(0);
    EXPECT_EQ(screen->readValues(), QStringList({"3.00", "8.25"}));
    EXPECT_FALSE(view.accessibleText().contains("Total"));

    screen->setBarsShown(true);
    EXPECT_EQ(drawn(*screen), "bars Processors Allocated, Processors Used");
    EXPECT_EQ(screen->drawnSeries(), QList<int>({1, 2}));
    screen->toggleSeries(1);
    screen->toggleSeries(2);
    EXPECT_EQ(drawn(*screen), "Processors Used") << "the last one stays";
    screen->selectedSegmentedIndex(1);
    EXPECT_EQ(drawn(*screen), "Memory Used");
    EXPECT_EQ(screen->latest(), QStringList({"16.00", "4.00", "7.25"}));

    // Of days a time alone would say too little.
    const auto longer = openChart({{timeline(1).moments[0], {eight + std::chrono::hours(30), {1, 2, 3}}}, 0});
    longer->chartView()->setReadIndex(0);
    EXPECT_EQ(longer->readTime(), "12 Mar, 17:00");
    EXPECT_EQ(longer->summary().at(0).times.last(), "13 Mar, 23:00");

    const auto none = openChart({});
    EXPECT_EQ(header(*none), "helios-01/");
    EXPECT_EQ(none->chartView()->accessibleText(), "No performance data available.");
}

TEST_F(LargeChartTest, PointsAndPictureAreSaved)
{
    const auto screen = openChart(timeline(240));
    screen->toggleSeries(0);
    const Result<Table> points = readCsv(saved(*screen, 0).toStdString());
    EXPECT_EQ(m_name, "helios-01 processors 2026-03-12.csv");
    ASSERT_TRUE(points.ok());
    ASSERT_EQ(points.value().rows.size(), 240U) << "all series at all times, whatever is shown";
    EXPECT_THAT(points.value().rows[1],
                ElementsAre("2026-03-12T08:03:00Z", "2026-03-12T17:03:00+09:00", "16", "4", "7.25"));

    const QImage picture = QImage::fromData(saved(*screen, 1), "PNG");
    EXPECT_EQ(m_name, "helios-01 processors 2026-03-12.png");
    ASSERT_EQ(picture.size(), QSize(2560, 1440));
    std::map<QRgb, int> counts;
    for (int y = 300; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    EXPECT_GT(counts[qRgb(0x00, 0x30, 0x8B)], 1000) << "the line of used";
    EXPECT_GT(counts[qRgb(0x00, 0x8B, 0x11)], 1000) << "the line of allocated";
    EXPECT_LT(counts[qRgb(0xD9, 0x7A, 0x00)], 10) << "total is switched off";
}

} // namespace
} // namespace lodestar::testing

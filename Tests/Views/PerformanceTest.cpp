// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Metrics.h"
#include "Tests/Views/ListFixture.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QStringList>

namespace lodestar::testing
{
namespace
{

using ::testing::_;

const std::string source = "Shared/Views/ManagedSystems/PCM/PCMViewController";

simulator::ManagedSystem firstSystem()
{
    return simulator::makeInventory({}, 0).systems.front();
}

class PerformanceTest : public ListTest
{
protected:
    std::shared_ptr<PCMViewController> openPerformance(const CorvelRef& corvel, const std::string& systemID = "any")
    {
        setZone("EAST-9"); // what a console says in its own is shown in this one
        auto screen = makeController<PCMViewController>();
        screen->setCorvel(corvel);
        screen->setSysName("helios-01");
        screen->setSystemID(systemID);
        return push(screen);
    }
    std::shared_ptr<PCMViewController> openDemo(const std::string& document)
    {
        demoFeeds["ManagedSystem.json"] = document;
        auto screen = openPerformance(addCorvel("Demo", "127.0.0.1", true));
        EXPECT_TRUE(hasEnded(*screen));
        return screen;
    }
    static bool hasEnded(PCMViewController& screen)
    {
        return runUntil([&] { return !screen.chartView()->isHidden(); });
    }
    static QStringList values(PCMViewController& screen)
    {
        return {screen.totalLabel()->text(), screen.allocatedLabel()->text(), screen.usedLabel()->text()};
    }
    static QStringList names(PCMViewController& screen)
    {
        QStringList found;
        for (const LineChartDataSet& set : screen.chartView()->data().lineDataSets) {
            found << set.label;
        }
        return found;
    }
    void expectToLoad(PCMViewController& screen)
    {
        EXPECT_EQ(
            seen(screen),
            "allocatedIndicator fetchingActivityView fetchingLabel totalIndicator typeSegmentedControl usedIndicator");
        ASSERT_TRUE(hasEnded(screen));
        EXPECT_EQ(seen(screen), "allocatedLabel chartView totalLabel typeSegmentedControl usedLabel");
    }
};

TEST_F(PerformanceTest, ProcessorsThenMemoryOfASimulatedConsole)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    fleet.clearRequests();
    const auto screen = openPerformance(corvel, firstSystem().id);
    EXPECT_EQ(header(*screen), "helios-01/updating...");
    expectToLoad(*screen);
    EXPECT_EQ(values(*screen), QStringList({"16.00", "12.00", "6.50"}));
    EXPECT_EQ(names(*screen), QStringList({"Total Processors", "Processors Allocated", "Processors Used"}));
    EXPECT_EQ(header(*screen), "helios-01/12 Mar 2026, 06:44 - 12 Mar 2026, 18:41");
    EXPECT_EQ(screen->endDate().value() - screen->startDate().value(), std::chrono::seconds(239 * 180));
    const PlotChartData processors = screen->chartView()->data();
    EXPECT_EQ(processors.xVals.size(), 240);
    EXPECT_EQ(processors.lineDataSets[1].entries.last(), (ChartEntry{12, 239}));

    screen->selectedSegmentedIndex(1);
    expectToLoad(*screen);
    EXPECT_EQ(values(*screen), QStringList({"262.14", "10.24", "250.00"}));
    EXPECT_EQ(names(*screen), QStringList({"Total Memory", "Memory Allocated", "Memory Used"}));
    EXPECT_EQ(screen->chartView()->data().lineDataSets[0].entries.first(), (ChartEntry{262.144F, 0}));
    EXPECT_EQ(fleet.requests().size(), 4U) << "the choice fetches the document anew";

    for (const char* fault : {"unprocessedMetrics", "refuseFeed:Metrics"}) {
        fleet.setFault(fault);
        screen->selectedSegmentedIndex(1);
        expectToLoad(*screen);
        EXPECT_EQ(values(*screen), QStringList({"-", "-", "-"}));
        EXPECT_TRUE(screen->chartView()->data().lineDataSets.isEmpty());
        EXPECT_EQ(header(*screen), "helios-01/");
        fleet.clearFaults();
        screen->rightBarButton()->tap();
        EXPECT_EQ(screen->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::None);
        expectToLoad(*screen);
        EXPECT_EQ(screen->chartView()->data().lineDataSets.size(), 3);
    }
    EXPECT_THAT(log(source), ElementsAre("39 viewDidLoad: PCMViewController instantiation",
                                         AllOf(StartsWith("163 fetchPCMData: Error: "),
                                               HasSubstr("Processing did not happen"), EndsWith(" - > fetchPCMData")),
                                         StartsWith("163 fetchPCMData: Error: ")));
}

TEST_F(PerformanceTest, LaterChoiceWinsOverAnEarlierFailure)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef stopped = addLoggedOn(fleet);
    demoFeeds["ManagedSystem.json"] = simulator::writeMetricsDocument(firstSystem(), {});
    fleet.stopConsole(0);
    const auto screen = openPerformance(stopped);
    QStringList shown;
    QObject::connect(screen->totalLabel(), &LabelOutlet::textChanged, screen->totalLabel(),
                     [&shown, label = screen->totalLabel()] { shown << label->text(); });
    screen->setCorvel(addCorvel("Demo", "127.0.0.1", true));
    screen->selectedSegmentedIndex(1);
    ASSERT_TRUE(runUntil([&] { return log(source).size() == 2 && !screen->chartView()->isHidden(); }));
    EXPECT_THAT(log(source)[1], HasSubstr("fetchPCMData"));
    EXPECT_EQ(shown, QStringList("262.14"));
    EXPECT_EQ(names(*screen)[0], "Total Memory");
}

TEST_F(PerformanceTest, NullsAreLoggedAndTheLastValuesStayWhenTheLastSampleIsSkipped)
{
    const auto screen = openDemo(simulator::writeMetricsDocument(firstSystem(), {.samples = 6}));
    const auto lastDate = screen->endDate();
    const auto calculate = [&](const std::string& samples) {
        const MetricsDocument document = MetricsDocument::parse(samples).value();
        screen->calculateGraphValuesFromJSON(document.root());
    };
    const std::string skipped =
        R"([{"sampleInfo":{"timeStamp":"never"},"serverUtil":{"processor":{"totalProcUnits":[3],"availableProcUnits":[1],"utilizedProcUnits":[1]}}},
            {"serverUtil":{"processor":{"totalProcUnits":[3],"availableProcUnits":[null],"utilizedProcUnits":[null]}}},
            {"serverUtil":{"processor":{"totalProcUnits":["3"],"availableProcUnits":[1],"utilizedProcUnits":[1]}}}])";
    calculate(skipped);
    EXPECT_EQ(values(*screen), QStringList({"16.00", "12.00", "6.50"}));
    EXPECT_EQ(screen->endDate(), lastDate);
    EXPECT_EQ(screen->startDate(), std::nullopt) << "the first sample's stamp cannot be read";
    EXPECT_EQ(screen->chartView()->data().xVals, QStringList("0"));
    calculate(
        R"([{"serverUtil":{"processor":{"totalProcUnits":[0.125],"availableProcUnits":[0.25],"utilizedProcUnits":[2.375]}}}])");
    EXPECT_EQ(values(*screen), QStringList({"0.12", "-0.12", "2.38"})) << "ties go to the even digit";
    screen->typeSegmentedControl()->setSelectedSegmentIndex(1);
    calculate(skipped);
    EXPECT_EQ(names(*screen)[1], "Memory Allocated") << "there were samples";
    screen->calculateGraphValuesFromJSON({});
    EXPECT_EQ(names(*screen), QStringList({"", "", ""}));
    const auto line = [](const char* start, const char* what) {
        return std::string(start) + " calculateGraphValuesFromJSON:: " + what;
    };
    const std::string memory = line("320", "Memory PCM Information has no number for key: totalMem");
    EXPECT_THAT(log(source),
                ElementsAre(_, line("262", "Processor PCM Information has a null value for key: availableProcUnits"),
                            line("268", "Processor PCM Information has no number for key: totalProcUnits"), memory,
                            memory, memory));

    // A broken console cannot fill the log.
    std::string many = "[0";
    for (int i = 1; i < 1500; ++i) {
        many += ",0";
    }
    const std::size_t before = log(source).size();
    calculate(many + "]");
    EXPECT_EQ(log(source).size(), before + 1001);
    EXPECT_EQ(log(source).back(), line("330", "500 more samples were skipped"));
}

TEST_F(PerformanceTest, PeriodShowsWhatCanBeRead)
{
    const auto period = [&](const std::string& info) {
        return header(*openDemo(R"({"systemUtil":{"utilInfo":)" + info + R"(,"utilSamples":[{}]}})"));
    };
    EXPECT_EQ(period(R"({"startTimeStamp":"2026-03-11T23:46:00.+0200","endTimeStamp":"2026-03-12T09:41:00.+0000"})"),
              "helios-01/12 Mar 2026, 06:46 - 12 Mar 2026, 18:41");
    EXPECT_EQ(period(R"({"startTimeStamp":7,"endTimeStamp":"2026-03-12T09:41:00.+0000"})"),
              "helios-01/12 Mar 2026, 18:41");
    EXPECT_EQ(period("[]"), "helios-01/");
}

} // namespace
} // namespace lodestar::testing

// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Registry.h"
#include "Inventory/ManagedSystem.h"
#include "Simulator/Metrics.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QDateTime>
#include <QStringList>

namespace lodestar::testing
{
namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string source = "Shared/Views/ManagedSystems/PCM/PCMViewController";

std::string demoMetrics(const simulator::MetricsShape& shape)
{
    const simulator::Inventory inventory = simulator::makeInventory({}, 0);
    return simulator::writeMetricsDocument(inventory.systems.front(), shape);
}

class PerformanceTest : public ListTest
{
    const InZone m_zone{"EAST-9"}; // what a console says in its own is shown in this one

protected:
    std::shared_ptr<PCMViewController> openPerformance(const CorvelRef& corvel, const std::string& systemID = "any")
    {
        auto screen = makeController<PCMViewController>();
        screen->setCorvel(corvel);
        screen->setSysName("helios-01");
        screen->setSystemID(systemID);
        return push(screen);
    }
    std::shared_ptr<PCMViewController> openDemo(const std::string& document)
    {
        demoFeeds()["ManagedSystem.json"] = document;
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
    static std::string firstSystem(const CorvelRef& corvel)
    {
        const auto feed = fetchFeedWithStoredKey(corvel, ObjectType::ManagedSystem);
        EXPECT_TRUE(runUntil([&] { return feed.isFulfilled(); }));
        return ManagedSystem::identifierAt(Feed(feed.result()->value()), 0).value();
    }
    static QString local(const char* utc)
    {
        const QDateTime moment = QDateTime::fromString(QString::fromLatin1(utc), Qt::ISODate).toLocalTime();
        return mediumDateShortTime({moment.date(), moment.time()});
    }
    void expectLoading(PCMViewController& screen)
    {
        EXPECT_TRUE(screen.chartView()->isHidden());
        EXPECT_FALSE(screen.fetchingLabel()->isHidden());
        EXPECT_TRUE(screen.fetchingActivityView()->isAnimating());
        for (LabelOutlet* label : {screen.totalLabel(), screen.allocatedLabel(), screen.usedLabel()}) {
            EXPECT_TRUE(label->isHidden());
        }
        for (IndicatorOutlet* each : {screen.totalIndicator(), screen.allocatedIndicator(), screen.usedIndicator()}) {
            EXPECT_TRUE(each->isAnimating());
        }
    }
    void expectLoaded(PCMViewController& screen)
    {
        EXPECT_FALSE(screen.chartView()->isHidden());
        EXPECT_TRUE(screen.fetchingLabel()->isHidden());
        EXPECT_FALSE(screen.fetchingActivityView()->isAnimating());
        for (LabelOutlet* label : {screen.totalLabel(), screen.allocatedLabel(), screen.usedLabel()}) {
            EXPECT_FALSE(label->isHidden());
        }
        for (IndicatorOutlet* each : {screen.totalIndicator(), screen.allocatedIndicator(), screen.usedIndicator()}) {
            EXPECT_FALSE(each->isAnimating());
        }
    }
};

TEST_F(PerformanceTest, ProcessorsThenMemoryOfASimulatedConsole)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    const std::string system = firstSystem(corvel);
    fleet.clearRequests();
    const auto screen = openPerformance(corvel, system);
    EXPECT_EQ(screen->header()->titleLabel()->text(), "helios-01");
    EXPECT_EQ(screen->header()->subtitleLabel()->text(), "updating...");
    expectLoading(*screen);
    ASSERT_TRUE(hasEnded(*screen));
    expectLoaded(*screen);
    EXPECT_EQ(values(*screen), QStringList({"16.00", "12.00", "6.50"}));
    EXPECT_EQ(names(*screen), QStringList({"Total Processors", "Processors Allocated", "Processors Used"}));
    EXPECT_EQ(screen->header()->subtitleLabel()->text(),
              local("2026-03-11T21:44:17Z") + " - " + local("2026-03-12T09:41:17Z"));
    EXPECT_EQ(screen->endDate().value() - screen->startDate().value(), std::chrono::seconds(239 * 180));
    const PlotChartData processors = screen->chartView()->data();
    EXPECT_EQ(processors.xVals.size(), 240);
    EXPECT_EQ(processors.lineDataSets[1].entries.last(), (ChartEntry{12, 239}));

    screen->selectedSegmentedIndex(1);
    expectLoading(*screen);
    ASSERT_TRUE(hasEnded(*screen));
    expectLoaded(*screen);
    EXPECT_EQ(values(*screen), QStringList({"262.14", "10.24", "250.00"}));
    EXPECT_EQ(names(*screen), QStringList({"Total Memory", "Memory Allocated", "Memory Used"}));
    EXPECT_EQ(screen->chartView()->data().lineDataSets[0].entries.first(), (ChartEntry{262.144F, 0}));
    EXPECT_EQ(fleet.requests().size(), 4U) << "the choice fetches the document anew";
    EXPECT_THAT(messages(source), ElementsAre("PCMViewController instantiation"));
    EXPECT_EQ(lineNumbers(lines(source)), std::vector<int>{39});
}
TEST_F(PerformanceTest, FailureShowsAnEmptyChartAndDashes)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    const auto screen = openPerformance(corvel, firstSystem(corvel));
    ASSERT_TRUE(hasEnded(*screen));
    for (const char* fault : {"unprocessedMetrics", "refuseFeed:Metrics"}) {
        screen->selectedSegmentedIndex(0);
        ASSERT_TRUE(hasEnded(*screen));
        EXPECT_EQ(screen->chartView()->data().lineDataSets.size(), 3);
        fleet.setFault(fault);
        screen->selectedSegmentedIndex(1);
        expectLoading(*screen);
        ASSERT_TRUE(hasEnded(*screen));
        expectLoaded(*screen);
        EXPECT_EQ(values(*screen), QStringList({"-", "-", "-"}));
        EXPECT_TRUE(screen->chartView()->data().lineDataSets.isEmpty());
        EXPECT_EQ(screen->header()->titleLabel()->text(), "helios-01");
        EXPECT_EQ(screen->header()->subtitleLabel()->text(), "");
        fleet.clearFaults();
        screen->rightBarButton()->tap();
        expectLoading(*screen);
        EXPECT_EQ(screen->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::None);
        ASSERT_TRUE(hasEnded(*screen));
        EXPECT_EQ(screen->chartView()->data().lineDataSets.size(), 3);
    }
    EXPECT_EQ(lineNumbers(lines(source)), (std::vector<int>{39, 163, 163}));
    EXPECT_THAT(messages(source),
                Contains(::testing::AllOf(HasSubstr("Processing did not happen"), HasSubstr(" - > fetchPCMData"))));
}

TEST_F(PerformanceTest, LaterChoiceWinsOverAnEarlierFailure)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef stopped = addLoggedOn(fleet);
    demoFeeds()["ManagedSystem.json"] = demoMetrics({});
    fleet.stopConsole(0);
    const auto screen = openPerformance(stopped);
    QStringList shown;
    QObject::connect(screen->totalLabel(), &LabelOutlet::textChanged, screen->totalLabel(),
                     [&shown, label = screen->totalLabel()] { shown << label->text(); });
    screen->setCorvel(addCorvel("Demo", "127.0.0.1", true));
    screen->selectedSegmentedIndex(1);
    ASSERT_TRUE(runUntil([&] { return lines(source).size() == 2 && !screen->chartView()->isHidden(); }));
    EXPECT_THAT(messages(source)[1], HasSubstr("fetchPCMData"));
    EXPECT_EQ(shown, QStringList("262.14"));
    EXPECT_EQ(names(*screen)[0], "Total Memory");
}

TEST_F(PerformanceTest, ScreenMayCloseWhileItFetches)
{
    simulator::SimulatorProcess fleet{{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    fleet.setLatency(100);
    std::weak_ptr<PCMViewController> screen = openPerformance(corvel, "nothing");
    goBack();
    EXPECT_FALSE(screen.expired()) << "the fetch keeps it";
    EXPECT_TRUE(runUntil([&] { return screen.expired(); }));
    EXPECT_EQ(lineNumbers(lines(source)), (std::vector<int>{39, 163}));
}

TEST_F(PerformanceTest, NullsAreLoggedAndTheLastValuesStayWhenTheLastSampleIsSkipped)
{
    const auto screen = openDemo(demoMetrics({.samples = 6}));
    const auto lastDate = screen->endDate();
    const auto document = MetricsDocument::parse(
        R"([{"sampleInfo":{"timeStamp":"never"},"serverUtil":{"processor":{"totalProcUnits":[3],"availableProcUnits":[1],"utilizedProcUnits":[1]}}},
            {"serverUtil":{"processor":{"totalProcUnits":[3],"availableProcUnits":[null],"utilizedProcUnits":[null]}}},
            {"serverUtil":{"processor":{"totalProcUnits":["3"],"availableProcUnits":[1],"utilizedProcUnits":[1]}}}])");
    screen->calculateGraphValuesFromJSON(document.value().root());
    EXPECT_EQ(values(*screen), QStringList({"16.00", "12.00", "6.50"}));
    EXPECT_EQ(screen->endDate(), lastDate);
    EXPECT_EQ(screen->startDate(), std::nullopt) << "the first sample's stamp cannot be read";
    EXPECT_EQ(screen->chartView()->data().xVals, QStringList("0"));

    const auto ties = MetricsDocument::parse(
        R"([{"serverUtil":{"processor":{"totalProcUnits":[0.125],"availableProcUnits":[0.25],"utilizedProcUnits":[2.375]}}}])");
    screen->calculateGraphValuesFromJSON(ties.value().root());
    EXPECT_EQ(values(*screen), QStringList({"0.12", "-0.12", "2.38"})) << "ties go to the even digit";
    EXPECT_THAT(messages(source), ElementsAre("PCMViewController instantiation",
                                              "Processor PCM Information has a null value for key: availableProcUnits",
                                              "Processor PCM Information has no number for key: totalProcUnits"));
    EXPECT_EQ(lineNumbers(lines(source)), (std::vector<int>{39, 262, 268}));

    screen->typeSegmentedControl()->setSelectedSegmentIndex(1);
    screen->calculateGraphValuesFromJSON(document.value().root());
    EXPECT_THAT(messages(source), Contains("Memory PCM Information has no number for key: totalMem").Times(3));
    EXPECT_EQ(names(*screen)[1], "Memory Allocated") << "there were samples";
    screen->calculateGraphValuesFromJSON({});
    EXPECT_EQ(names(*screen), QStringList({"", "", ""}));

    std::string many = "[0";
    for (int i = 1; i < 1500; ++i) {
        many += ",0";
    }
    const auto broken = MetricsDocument::parse(many + "]");
    const std::size_t before = lines(source).size();
    screen->calculateGraphValuesFromJSON(broken.value().root());
    EXPECT_EQ(lines(source).size(), before + 1001);
    EXPECT_EQ(messages(source).back(), "500 more samples were skipped");
}

TEST_F(PerformanceTest, PeriodShowsWhatCanBeRead)
{
    const std::string samples = R"("utilSamples":[{}])";
    const auto subtitle = [&](const std::string& info) {
        return openDemo(R"({"systemUtil":{"utilInfo":)" + info + "," + samples + "}}")
            ->header()
            ->subtitleLabel()
            ->text();
    };
    EXPECT_EQ(subtitle(R"({"startTimeStamp":"2026-03-11T23:46:00.+0200","endTimeStamp":"2026-03-12T09:41:00.+0000"})"),
              local("2026-03-11T21:46:00Z") + " - " + local("2026-03-12T09:41:00Z"));
    EXPECT_EQ(subtitle(R"({"startTimeStamp":7,"endTimeStamp":"2026-03-12T09:41:00.+0000"})"),
              local("2026-03-12T09:41:00Z"));
    EXPECT_EQ(subtitle("[]"), "");
}

} // namespace
} // namespace lodestar::testing

// SPDX-License-Identifier: Apache-2.0
#include "ChartSupport.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

#include <cmath>

namespace lodestar::charttest
{
namespace
{

class MockDelegate : public ChartViewDelegate
{
public:
    MOCK_METHOD(void, chartValueSelected, (ChartView&, const ChartEntry&, int, const Highlight&), (override));
    MOCK_METHOD(void, chartValueNothingSelected, (ChartView&), (override));
};

PlotChartData twoLines()
{
    PlotChartData data{
        numbers(3), {}, {plainLine("Total Processors", blue, {16}), plainLine("Processors Used", red, {})}};
    data.lineDataSets[0].entries << ChartEntry{16, 2};
    data.lineDataSets[1].entries = {{6.5, 2}, {4, 0}, {NAN, 3}};
    return data;
}

TEST(ChartViewTest, APlotReadsAsNamesWithTheirLatestValuesAndAPieAsNamesWithCounts)
{
    PlotChartView lines;
    const QSignalSpy texts(&lines, &ChartView::dataChanged);
    lines.setNoDataText("No performance data available.");
    lines.setData(twoLines());
    EXPECT_EQ(lines.accessibleText(), "Total Processors 16, Processors Used 6.5");
    lines.clear();
    EXPECT_EQ(lines.accessibleText(), "No performance data available.");
    EXPECT_EQ(texts.count(), 3);

    PieChartView pie;
    EXPECT_EQ(pie.accessibleText(), "");
    PieChartModel model = dashboardPie({17, 2, 3});
    model.data.xVals = {"operating", "incomplete"};
    pie.setData(model.data);
    EXPECT_EQ(pie.accessibleText(), "operating 17, incomplete 2, 3") << "an index without a label has no name";
}

TEST(ChartViewTest, TheUsersSelectionIsToldOnceAndOnlyOfEntriesThatExist)
{
    testing::StrictMock<MockDelegate> delegate;
    PlotChartView lines;
    lines.setData(twoLines());
    lines.setDelegate(&delegate);
    EXPECT_CALL(delegate, chartValueSelected(testing::Ref(lines), ChartEntry{6.5, 2}, 1, Highlight{2, 1}));
    lines.select(Highlight{2, 1});
    EXPECT_EQ(lines.selectedText(), "Processors Used, 2: 6.5");
    EXPECT_CALL(delegate, chartValueNothingSelected(testing::Ref(lines))).Times(3);
    lines.select(Highlight{2, 1});
    EXPECT_EQ(lines.selectedText(), "") << "the selected entry again selects nothing";
    lines.select(Highlight{1, 0});
    lines.select(Highlight{0, 7});
    lines.highlightValues({Highlight{0, 0}});
    EXPECT_EQ(lines.selectedText(), "Total Processors, 0: 16") << "the program's own highlight is not told";

    PieChartView pie;
    pie.setDelegate(&delegate);
    pie.setData(dashboardPie({2, 1}).data);
    EXPECT_CALL(delegate, chartValueSelected(testing::Ref(pie), ChartEntry{1, 1}, 0, Highlight{1, 0}));
    pie.select(1);
    EXPECT_EQ(pie.selectedText(), "state 1 1");
    EXPECT_CALL(delegate, chartValueNothingSelected(testing::Ref(pie))).Times(3);
    pie.select(1);
    EXPECT_EQ(pie.selectedEntry(), std::nullopt);
    pie.select(99);
    pie.select(-1);
}

TEST(ChartViewTest, NewDataAreShownWholeAndLinesGrowInAlongXAlone)
{
    PlotChartView view;
    view.setData(twoLines());
    view.setViewport({0.5, 0.5, 0.000001, 0.5});
    EXPECT_EQ(view.viewport().width, view.smallestViewport().width()) << "no zoom beyond two steps";
    view.highlightValues({Highlight{0, 0}});
    view.setData(twoLines());
    EXPECT_EQ(view.viewport(), PlotViewport());
    EXPECT_TRUE(view.model().highlights.isEmpty());

    ChartAnimation last;
    QObject::connect(&view, &ChartView::animateRequested, &view, [&](const ChartAnimation& a) { last = a; });
    view.animate(2.5, static_cast<ChartEasingOption>(9));
    EXPECT_EQ(last.duration(), 2.5);
    EXPECT_EQ(last.phasesAt(1.25).y, 1);
    EXPECT_NEAR(last.phasesAt(1.25).x, 0.5, 1e-6);
}

} // namespace
} // namespace lodestar::charttest

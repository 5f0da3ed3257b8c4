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

LineChartData twoLines()
{
    LineChartData data;
    data.xVals = {"0", "1", "2"};
    LineChartDataSet total;
    total.label = "Total Processors";
    total.entries = {{16, 0}, {16, 2}};
    LineChartDataSet used = total;
    used.label = "Processors Used";
    used.entries = {{6.5, 2}, {4, 0}, {NAN, 3}};
    data.dataSets = {total, used};
    return data;
}

TEST(LineChartViewTest, ReadsAsNamesWithTheirLatestValues)
{
    LineChartView view;
    const QSignalSpy texts(&view, &ChartView::dataChanged);
    view.setNoDataText("No performance data available.");
    EXPECT_EQ(view.accessibleText(), "No performance data available.");
    view.setData(twoLines());
    EXPECT_EQ(view.accessibleText(), "Total Processors 16, Processors Used 6.5");
    view.clear();
    EXPECT_EQ(view.accessibleText(), "No performance data available.");
    EXPECT_EQ(texts.count(), 3);
}

TEST(LineChartViewTest, SelectionIsToldOnceAndOnlyOfEntriesThatExist)
{
    testing::StrictMock<MockDelegate> delegate;
    LineChartView view;
    view.setData(twoLines());
    view.setDelegate(&delegate);
    EXPECT_CALL(delegate, chartValueSelected(testing::Ref(view), ChartEntry{6.5, 2}, 1, Highlight{2, 1}));
    view.select(Highlight{2, 1});
    EXPECT_EQ(view.selectedText(), "Processors Used, 2: 6.5");
    EXPECT_CALL(delegate, chartValueNothingSelected(testing::Ref(view))).Times(3);
    view.select(Highlight{2, 1});
    EXPECT_EQ(view.selectedText(), "") << "the selected entry again selects nothing";
    view.select(Highlight{1, 0});
    view.select(Highlight{0, 7});
    view.highlightValues({Highlight{0, 0}});
    EXPECT_EQ(view.selectedText(), "Total Processors, 0: 16") << "the program's own highlight is not told";
}

TEST(LineChartViewTest, NewDataAreShownWholeAndChangesAreToldOnce)
{
    LineChartView view;
    view.setData(twoLines());
    view.setViewport({0.5, 0.5, 0.000001, 0.5});
    EXPECT_EQ(view.viewport().width, view.smallestViewport().width()) << "no zoom beyond two steps";
    view.highlightValues({Highlight{0, 0}});
    view.setData(twoLines());
    EXPECT_EQ(view.viewport(), PlotViewport());
    EXPECT_TRUE(view.model().highlights.isEmpty());

    const QSignalSpy changes(&view, &ChartView::changed);
    XAxis axis = view.xAxis();
    axis.addLimitLine(LimitLine());
    view.setXAxis(axis);
    view.setXAxis(axis);
    EXPECT_EQ(changes.count(), 1);
}

TEST(LineChartViewTest, AnimatesAlongXAlone)
{
    LineChartView view;
    ChartAnimation last;
    QObject::connect(&view, &ChartView::animateRequested, &view, [&](const ChartAnimation& a) { last = a; });
    view.animate(2.5, static_cast<ChartEasingOption>(9));
    EXPECT_EQ(last.xDuration, 2.5);
    EXPECT_EQ(last.easing, ChartEasingOption::EaseInOutQuart);
    EXPECT_EQ(last.phasesAt(1.25).y, 1);
    EXPECT_NEAR(last.phasesAt(1.25).x, 0.5, 1e-6);
    view.animate(3.0);
    EXPECT_EQ(last.duration(), 3);
}

} // namespace
} // namespace lodestar::charttest

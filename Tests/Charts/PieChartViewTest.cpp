// SPDX-License-Identifier: Apache-2.0
#include "Charts/PieChartView.h"

#include "ChartSupport.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace lodestar::charttest
{
namespace
{

struct Recorder : ChartViewDelegate {
    void chartValueSelected(ChartView&, const ChartEntry& entry, int dataSetIndex, const Highlight& highlight) override
    {
        EXPECT_EQ(dataSetIndex, highlight.dataSetIndex);
        selected << entry.xIndex;
    }
    void chartValueNothingSelected(ChartView&) override { ++nothing; }

    QList<int> selected;
    int nothing = 0;
};

TEST(PieChartViewTest, SelectionTellsTheDelegateAndClearingDoesNot)
{
    PieChartView view;
    Recorder recorder;
    view.setDelegate(&recorder);
    view.setData(dashboardPie({2, 1}).data);
    view.select(1);
    EXPECT_EQ(recorder.selected, QList<int>{1});
    EXPECT_EQ(view.selectedText(), "state 1 1");
    view.highlightValues({});
    EXPECT_EQ(view.selectedEntry(), std::nullopt);
    EXPECT_EQ(recorder.nothing, 0);
    view.select(0);
    view.select(0);
    EXPECT_EQ(view.selectedEntry(), std::nullopt) << "selecting again takes back";
    view.select(99);
    view.select(-1);
    EXPECT_EQ(recorder.selected, (QList<int>{1, 0}));
    EXPECT_EQ(recorder.nothing, 3);
}

TEST(PieChartViewTest, ReadsAsAListOfStateAndCount)
{
    PieChartView view;
    EXPECT_EQ(view.accessibleText(), "");
    PieChartModel model = dashboardPie({17, 2, 3});
    model.data.xVals = {"operating", "incomplete"};
    view.setData(model.data);
    view.setUsePercentValues(true);
    view.setUsePercentValues(false);
    EXPECT_EQ(view.accessibleText(), "operating 17, incomplete 2, 3") << "an index without a label has no name";
}
} // namespace
} // namespace lodestar::charttest

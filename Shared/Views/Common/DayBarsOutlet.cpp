// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/DayBarsOutlet.h"

#include "Kit/Core/UIColor+Tessel.h"
#include "Views/Common/FeedTimeStamp.h"

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr double growTime = 0.4; // Seconds.
constexpr BarStyle changeBars{.sharesPlace = true, .share = 0.7, .radius = 2, .gap = 1.25};
constexpr BarStyle eventBars{.sharesPlace = true, .share = 0.72, .radius = 2};

/// Below the bars: the first day and, as a rule, the middle one by their dates, the last one as "today".
QStringList labelsOf(std::size_t count, std::chrono::local_days today)
{
    QStringList labels;
    for (std::size_t i = 0; i + 1 < count; ++i) {
        labels << dayAndMonth(dateOf(today - std::chrono::days(count - 1 - i)));
    }
    return labels << DayBarsOutlet::tr("today");
}

void append(BarChartDataSet& bars, int value)
{
    bars.entries << ChartEntry{static_cast<float>(value), static_cast<int>(bars.entries.size())};
}

} // namespace

QDate dateOf(std::chrono::local_days day)
{
    return QDate(1970, 1, 1).addDays(day.time_since_epoch().count());
}

DayBarsOutlet::DayBarsOutlet()
{
    m_chart.setDelegate(this);
    m_chart.setCompact(true);
    m_chart.setDragEnabled(false);
    m_chart.setScaleEnabled(false);
    m_chart.setHighlightIndicatorEnabled(false);
    m_chart.setDrawGridBackgroundEnabled(false);
    Legend legend = m_chart.legend();
    legend.enabled = false;
    m_chart.setLegend(legend);
    YAxis right;
    right.enabled = false;
    m_chart.setRightAxis(right);
}

void DayBarsOutlet::setHidden(bool hidden)
{
    if (m_hidden != hidden) {
        m_hidden = hidden;
        Q_EMIT hiddenChanged();
    }
}

void DayBarsOutlet::showChanges(const std::vector<ChangeCount>& counts, std::chrono::local_days today)
{
    PlotChartData data;
    data.xVals = labelsOf(counts.size(), today);
    data.barStyle = changeBars;
    data.barDataSets.resize(2);
    BarChartDataSet& worse = data.barDataSets[0];
    BarChartDataSet& better = data.barDataSets[1];
    worse.label = tr("Worse, above");
    better.label = tr("Better, below");
    QStringList days;
    ChangeCount most{1, 1};
    for (std::size_t i = 0; i < counts.size(); ++i) {
        append(worse, counts[i].worse);
        append(better, -counts[i].better);
        most = {std::max(most.worse, counts[i].worse), std::max(most.better, counts[i].better)};
        //: A day, and what a chart tells of it.
        days << tr("%1 %2 worse, %3 better")
                    .arg(data.xVals.at(static_cast<int>(i)))
                    .arg(counts[i].worse)
                    .arg(counts[i].better);
    }
    XAxis x;
    x.drawGridLinesEnabled = false;
    x.drawAxisLineEnabled = false;
    const int last = static_cast<int>(counts.size()) - 1;
    x.labelledIndices = {0, (last + 1) / 2, last};
    m_chart.setXAxis(x);
    YAxis y;
    y.drawGridLinesEnabled = false;
    y.drawAxisLineEnabled = false;
    y.drawZeroLineEnabled = true;
    y.drawSignEnabled = false;
    y.labelledValues = {-static_cast<double>(most.better), static_cast<double>(most.worse)};
    m_chart.setLeftAxis(y);
    //: How many days a chart has, and what it tells of the last.
    show(data, days, tr("%Ln days, %1", nullptr, static_cast<int>(counts.size())).arg(days.value(last)));
}

void DayBarsOutlet::showEvents(const std::vector<int>& counts, std::chrono::local_days today)
{
    PlotChartData data;
    data.xVals = labelsOf(counts.size(), today);
    data.barStyle = eventBars;
    data.barDataSets.resize(1);
    BarChartDataSet& bars = data.barDataSets[0];
    bars.colors = {UIColor::dashboardBlue()};
    QStringList days;
    int most = 2;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        append(bars, counts[i]);
        most = std::max(most, counts[i] + counts[i] % 2);
        //: A day, and its number of new events.
        days << tr("%1 %2").arg(data.xVals.at(static_cast<int>(i))).arg(counts[i]);
    }
    XAxis x;
    x.drawGridLinesEnabled = false;
    const int last = static_cast<int>(counts.size()) - 1;
    x.labelledIndices = {0, last};
    m_chart.setXAxis(x);
    YAxis y;
    y.drawAxisLineEnabled = false;
    y.gridLineDashLengths = {5, 5};
    y.labelledValues = {0, most / 2.0, static_cast<double>(most)};
    m_chart.setLeftAxis(y);
    const QString name = tr("New Events a Day");
    //: A chart's name, how many days it has, and what it tells of the last.
    show(data, days, tr("%1, %Ln days, %2", nullptr, static_cast<int>(counts.size())).arg(name, days.value(last)));
}

void DayBarsOutlet::show(const PlotChartData& data, const QStringList& days, const QString& spoken)
{
    m_chart.setData(data);
    m_chart.setAccessibleText(spoken);
    if (m_days != days) {
        m_days = days;
        Q_EMIT daysChanged();
    }
}

void DayBarsOutlet::grow()
{
    m_chart.animate(growTime, ChartEasingOption::EaseOutCubic);
}

void DayBarsOutlet::chartValueSelected(ChartView& chartView, const ChartEntry& /*entry*/, int /*dataSetIndex*/,
                                       const Highlight& highlight)
{
    // A tap leads on and leaves nothing chosen behind.
    chartView.highlightValues({});
    choose(highlight.xIndex);
}

} // namespace lodestar

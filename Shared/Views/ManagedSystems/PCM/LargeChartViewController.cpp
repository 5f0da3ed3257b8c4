// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/PCM/LargeChartViewController.h"

#include "Fleet/MetricsTable.h"
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Views/ManagedSystems/PCM/ChartPicture.h"

#include <QDateTime>

#include <algorithm>

namespace lodestar
{
namespace
{

/// Orange, green and blue as charts have them on a light card; the scene knows their dark counterparts.
constexpr std::array<QColor, 3> seriesColors = {UIColor::chartOrange(), UIColor::successGreen(), UIColor::ornisBlue()};
constexpr int allocated = 1;
constexpr double barShare = 0.8; // Of the place that a sample has.
constexpr float barOpacity = 0.7F;
constexpr double lineOverBars = 2; // Width in points.

enum Choice { SavePoints, SavePicture, Cancel };

} // namespace

LargeChartViewController::LargeChartViewController()
{
    connect(&m_chartView, &PlotChartView::readIndexChanged, this, &LargeChartViewController::showReading);
}

void LargeChartViewController::setSegment(MetricsSegment segment)
{
    m_typeSegmentedControl.setSelectedSegmentIndex(static_cast<int>(segment));
}

MetricsSegment LargeChartViewController::segment() const
{
    return MetricsSegment{m_typeSegmentedControl.selectedSegmentIndex()};
}

const MetricsTimeline& LargeChartViewController::timeline() const
{
    return m_metrics->of(segment());
}

void LargeChartViewController::viewDidLoad()
{
    m_header.setCustomNavigationBar();
    configureChart();
    showSegment();
}

void LargeChartViewController::viewDidAppear()
{
    m_tabs = tabBarController();
    if (m_tabs != nullptr) {
        m_tabs->setBarHidden(true);
    }
}

void LargeChartViewController::viewDidDisappear()
{
    if (m_tabs != nullptr) {
        m_tabs->setBarHidden(false);
    }
}

void LargeChartViewController::configureChart()
{
    m_chartView.setNoDataText(tr("No performance data available."));
    m_chartView.setHighlightEnabled(false);
    m_chartView.setPinchZoomEnabled(true);
    m_chartView.setDrawGridBackgroundEnabled(false);
    YAxis leftAxis = m_chartView.leftAxis();
    leftAxis.startAtZeroEnabled = false;
    leftAxis.gridLineDashLengths = {5, 5};
    m_chartView.setLeftAxis(leftAxis);
    YAxis rightAxis = m_chartView.rightAxis();
    rightAxis.enabled = false;
    m_chartView.setRightAxis(rightAxis);
    Legend legend = m_chartView.legend();
    legend.enabled = false; // The scene's chips are the legend.
    m_chartView.setLegend(legend);
}

void LargeChartViewController::selectedSegmentedIndex(int index)
{
    m_typeSegmentedControl.setSelectedSegmentIndex(index);
    showSegment();
}

void LargeChartViewController::showSegment()
{
    const MetricsTimeline& shown = timeline();
    m_track = trackOf(shown);
    m_isOfDays = PerformanceText::isOfDays(shown);
    m_summary = PerformanceText::summary(shown);
    m_latest.clear();
    for (const PerformanceSummaryRow& row : std::as_const(m_summary)) {
        m_latest << row.values.last();
    }
    m_leftOut = PerformanceText::leftOut(shown.withoutValues, m_track.withoutTime);
    XAxis xAxis = m_chartView.xAxis();
    xAxis.drawGridLinesEnabled = false;
    xAxis.time = TimeScale{m_track.origin.time_since_epoch().count(), m_track.step, &PerformanceText::tick};
    m_chartView.setXAxis(xAxis);
    std::optional<MetricsDate> start;
    std::optional<MetricsDate> end;
    if (!m_track.points.empty()) {
        start = m_track.origin;
        end = m_track.origin + std::chrono::seconds(m_track.points.back().seconds);
    }
    m_header.setHeaderTitle(QString::fromStdString(m_sysName.value_or("")), PerformanceText::period(start, end));
    drawSeries();
}

QList<int> LargeChartViewController::drawnSeries() const
{
    QList<int> order;
    for (int series = 0; series < static_cast<int>(m_shown.size()); ++series) {
        if (m_shown.at(static_cast<std::size_t>(series))) {
            order.insert(m_barsShown && series == allocated ? 0 : order.size(), series);
        }
    }
    return order;
}

void LargeChartViewController::drawSeries()
{
    const QStringList names = PerformanceText::seriesNames(segment());
    PlotChartData data;
    data.barStyle = {.share = barShare, .place = static_cast<double>(m_track.step)};
    const auto fill = [&](ChartDataSet& set, int series) {
        set.label = names.at(series);
        set.colors = {seriesColors.at(static_cast<std::size_t>(series))};
        set.entries.reserve(static_cast<qsizetype>(m_track.points.size()));
        const auto figure = metricsSeries.at(static_cast<std::size_t>(series));
        for (const MetricsTrack::Point& point : m_track.points) {
            set.entries << ChartEntry{static_cast<float>(point.figures.*figure), point.seconds};
        }
    };
    QStringList spokenRows;
    for (const int series : drawnSeries()) {
        if (m_barsShown && series == allocated) {
            BarChartDataSet& bars = data.barDataSets.emplace_back();
            fill(bars, series);
            bars.colors.first().setAlphaF(barOpacity);
        } else {
            LineChartDataSet& line = data.lineDataSets.emplace_back();
            line.lineWidth = m_barsShown ? lineOverBars : 1;
            line.circleRadius = 0;
            line.drawCircleHoleEnabled = false;
            fill(line, series);
        }
        spokenRows << m_summary.value(series).spoken;
    }
    // What is in view of the values depends on the series; what is in view of the time does not.
    const PlotViewport seen = m_chartView.viewport();
    m_chartView.setData(data);
    m_chartView.setViewport({seen.x, 0, seen.width, 1});
    m_chartView.setAccessibleText(spokenRows.join(QStringLiteral("; ")));
    Q_EMIT chartChanged();
}

void LargeChartViewController::toggleSeries(int series)
{
    bool& isShown = m_shown.at(static_cast<std::size_t>(series));
    if (!isShown || std::ranges::count(m_shown, true) > 1) {
        isShown = !isShown;
        drawSeries();
    } else {
        Q_EMIT chartChanged(); // The chip that was pressed goes back to what is true.
    }
}

void LargeChartViewController::setBarsShown(bool shown)
{
    if (m_barsShown != shown) {
        m_barsShown = shown;
        m_shown.at(allocated) = m_shown.at(allocated) || shown;
        drawSeries();
    }
}

void LargeChartViewController::showReading()
{
    m_readTime.clear();
    m_readValues.clear();
    m_readText.clear();
    const std::optional<int> index = m_chartView.readIndex();
    const auto point = std::ranges::lower_bound(m_track.points, index.value_or(0), {}, &MetricsTrack::Point::seconds);
    if (index && point != m_track.points.end()) {
        const MetricsDate time = m_track.origin + std::chrono::seconds(point->seconds);
        m_readTime = PerformanceText::moment(time, m_isOfDays);
        for (std::size_t series = 0; series < m_shown.size(); ++series) {
            if (m_shown.at(series)) {
                m_readValues << PerformanceText::twoDecimals(point->figures.*metricsSeries.at(series));
            }
        }
        m_readText = PerformanceText::spokenReading(time, m_isOfDays, point->figures, m_shown);
    }
    Q_EMIT readingChanged();
}

void LargeChartViewController::share()
{
    const auto screen = self<LargeChartViewController>();
    m_shareMenu.present(m_header.titleLabel()->text(), {},
                        {{.title = tr("Save points as CSV"), .imageName = QStringLiteral("file")},
                         {.title = tr("Save picture"), .imageName = QStringLiteral("performance")},
                         {.title = tr("Cancel")}},
                        Cancel, [screen](int choice) {
                            if (choice == SavePoints) {
                                screen->savePoints();
                            } else if (choice == SavePicture) {
                                FileSaver::save(screen->fileName("png"), [screen] { return screen->picture(); });
                            }
                        });
}

void LargeChartViewController::savePoints()
{
    const auto screen = self<LargeChartViewController>();
    FileSaver::save(fileName("csv"), [screen] { return screen->points(); });
}

QByteArray LargeChartViewController::points() const
{
    return QByteArray::fromStdString(csvOf(metricsTable(timeline(), segment())));
}

QByteArray LargeChartViewController::picture()
{
    return chartPicture(m_chartView.model(), m_header.titleLabel()->text(), m_header.subtitleLabel()->text());
}

QString LargeChartViewController::fileName(const char* ending) const
{
    const QDateTime start = QDateTime::fromSecsSinceEpoch(m_track.origin.time_since_epoch().count());
    QStringList parts{QString::fromStdString(m_sysName.value_or("")),
                      segment() == MetricsSegment::Memory ? QStringLiteral("memory") : QStringLiteral("processors"),
                      start.date().toString(Qt::ISODate)};
    parts.removeAll(QString());
    return parts.join(QLatin1Char(' ')) + QLatin1Char('.') + QLatin1String(ending);
}

} // namespace lodestar

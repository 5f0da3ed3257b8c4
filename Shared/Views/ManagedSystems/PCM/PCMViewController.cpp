// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Views/Common/Scenes.h"
#include "Views/Common/ScreenLog.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lodestar
{
namespace
{

constexpr ScreenLog screenLog("Shared/Views/ManagedSystems/PCM/PCMViewController");
constexpr auto calculate = "calculateGraphValuesFromJSON:";

/// The most skipped samples that get a log line each, so that a broken console cannot fill the log.
constexpr std::size_t mostSkippedLines = 1000;

constexpr double newDataSeconds = 3.0;
constexpr double openingSeconds = 2.5;

/// Orange, green and blue as charts have them on a light card; the scene knows their dark counterparts.
constexpr std::array<QColor, 3> seriesColors = {UIColor::chartOrange(), UIColor::successGreen(), UIColor::ornisBlue()};

void logSkipped(const MetricsReduction& reduction, MetricsSegment segment)
{
    const bool isMemory = segment == MetricsSegment::Memory;
    const std::string subject = isMemory ? "Memory" : "Processor";
    const std::size_t lines = std::min(reduction.skipped.size(), mostSkippedLines);
    for (std::size_t i = 0; i < lines; ++i) {
        const SkippedSample& skipped = reduction.skipped[i];
        if (skipped.reason == SkippedSample::Reason::Null) {
            screenLog.write(isMemory ? 314 : 262, calculate,
                            subject + " PCM Information has a null value for key: " + std::string(skipped.key));
        } else {
            screenLog.write(isMemory ? 320 : 268, calculate,
                            subject + " PCM Information has no number for key: " + std::string(skipped.key));
        }
    }
    if (reduction.skipped.size() > lines) {
        screenLog.write(330, calculate,
                        std::to_string(reduction.skipped.size() - lines) + " more samples were skipped");
    }
}

} // namespace

PCMViewController::PCMViewController()
{
    m_fetchingLabel.setText(tr("Fetching performance data..."));
}

QString PCMViewController::name() const
{
    return QString::fromStdString(m_sysName.value_or(""));
}

void PCMViewController::viewDidLoad()
{
    screenLog.write(39, "viewDidLoad", "PCMViewController instantiation");
    m_header.setCustomNavigationBar();
    m_header.setHeaderTitle(name(), tr("updating..."));
    startLoadingIndicators();
    fetchPCMData();
    configureChart();
}

void PCMViewController::configureChart()
{
    m_chartView.setDelegate(this);
    m_chartView.setDescriptionText({});
    m_chartView.setNoDataText(tr("No performance data available."));
    m_chartView.setHighlightEnabled(false);
    m_chartView.setDragEnabled(true);
    m_chartView.setScaleEnabled(true);
    m_chartView.setPinchZoomEnabled(true);
    m_chartView.setHighlightIndicatorEnabled(false);
    m_chartView.setDrawGridBackgroundEnabled(false);

    XAxis xAxis = m_chartView.xAxis();
    xAxis.removeAllLimitLines();
    xAxis.labelPosition = XAxisLabelPosition::Bottom;
    xAxis.spaceBetweenLabels = 1;
    xAxis.drawGridLinesEnabled = false;
    m_chartView.setXAxis(xAxis);

    YAxis leftAxis = m_chartView.leftAxis();
    leftAxis.removeAllLimitLines();
    leftAxis.startAtZeroEnabled = false;
    leftAxis.gridLineDashLengths = {5, 5};
    leftAxis.drawLimitLinesBehindDataEnabled = true;
    m_chartView.setLeftAxis(leftAxis);

    YAxis rightAxis = m_chartView.rightAxis();
    rightAxis.enabled = false;
    m_chartView.setRightAxis(rightAxis);

    Legend legend = m_chartView.legend();
    legend.form = LegendForm::Line;
    m_chartView.setLegend(legend);
    m_chartView.animate(openingSeconds, ChartEasingOption::EaseInOutQuart);
}

void PCMViewController::selectedSegmentedIndex(int index)
{
    m_typeSegmentedControl.setSelectedSegmentIndex(index);
    startLoadingIndicators();
    fetchPCMData();
}

void PCMViewController::fetchPCMData()
{
    if (!corvel()) {
        showFailure();
        return;
    }
    const auto screen = self<PCMViewController>();
    const std::uint64_t fetch = ++m_fetch;
    m_rightBarButton.setItem(BarButtonOutlet::SystemItem::None, {});
    RESTHandler::sharedInstance()
        .login(corvel(), CheckToken::No)
        .then([corvel = corvel(), systemID = m_systemID](const SessionKey& key) {
            return RESTHandler::sharedInstance().fetchPCMDataForManagedSystem(systemID, corvel, key);
        })
        .thenOnMain(
            [screen, fetch](const MetricsDocument& document) {
                if (fetch == screen->m_fetch) {
                    screen->showMetrics(document);
                }
                return std::string("OK");
            },
            [screen, fetch](const Error& error) {
                screenLog.writeError(163, "fetchPCMData", error);
                if (fetch == screen->m_fetch) {
                    screen->showFailure();
                }
                return error;
            });
}

void PCMViewController::showMetrics(const MetricsDocument& document)
{
    const MetricsPeriod dates = periodOf(document);
    m_header.setHeaderTitle(name(), PerformanceText::period(dates.start, dates.end));
    calculateGraphValuesFromJSON(samplesOf(document));
}

void PCMViewController::showFailure()
{
    for (LabelOutlet* label : {&m_totalLabel, &m_allocatedLabel, &m_usedLabel}) {
        label->setText(QStringLiteral("-"));
    }
    m_chartView.clear();
    setMetrics(nullptr);
    stopLoadingIndicators();
    m_header.setHeaderTitle(name(), {});
    m_rightBarButton.setItem(BarButtonOutlet::SystemItem::Refresh, [this] {
        m_header.setHeaderTitle(name(), tr("updating..."));
        startLoadingIndicators();
        fetchPCMData();
    });
}

void PCMViewController::calculateGraphValuesFromJSON(const MetricsValue& samples)
{
    const MetricsReduction reduction = reduceMetrics(samples, segment());
    logSkipped(reduction, segment());
    if (reduction.first) {
        m_startDate = reduction.first->date;
    }
    // If the last sample was skipped, the values stay as they were.
    if (reduction.last) {
        setLatest(reduction.last->figures);
        m_endDate = reduction.last->date;
    }
    setChartData(reduction, segment());
    setMetrics(std::make_shared<const PerformanceMetrics>(PerformanceMetrics{
        timelineOf(samples, MetricsSegment::Processors), timelineOf(samples, MetricsSegment::Memory)}));
    stopLoadingIndicators();
}

void PCMViewController::setLatest(const MetricsFigures& figures)
{
    m_totalLabel.setText(PerformanceText::twoDecimals(figures.total));
    m_allocatedLabel.setText(PerformanceText::twoDecimals(figures.allocated));
    m_usedLabel.setText(PerformanceText::twoDecimals(figures.used));
}

void PCMViewController::setChartData(const MetricsReduction& reduction, MetricsSegment segment)
{
    QStringList names{QString(), QString(), QString()};
    if (reduction.sampleCount > 0) {
        names = PerformanceText::seriesNames(segment);
    }
    PlotChartData data;
    data.xVals.reserve(static_cast<qsizetype>(reduction.xLabels.size()));
    for (const std::string& label : reduction.xLabels) {
        data.xVals << QString::fromStdString(label);
    }
    for (std::size_t series = 0; series < metricsSeries.size(); ++series) {
        LineChartDataSet set;
        set.label = names.at(static_cast<qsizetype>(series));
        set.colors = {seriesColors.at(series)};
        set.lineWidth = 1;
        set.circleRadius = 0;
        set.drawCircleHoleEnabled = false;
        set.entries.reserve(static_cast<qsizetype>(reduction.points.size()));
        for (const MetricsPoint& point : reduction.points) {
            set.entries << ChartEntry{static_cast<float>(point.figures.*metricsSeries.at(series)), point.xIndex};
        }
        data.lineDataSets << set;
    }
    m_chartView.setData(data);
}

MetricsSegment PCMViewController::segment() const
{
    return MetricsSegment{m_typeSegmentedControl.selectedSegmentIndex()};
}

void PCMViewController::setMetrics(std::shared_ptr<const PerformanceMetrics> metrics)
{
    m_metrics = std::move(metrics);
    static const MetricsTimeline nothing;
    const MetricsTimeline& shown = m_metrics ? m_metrics->of(segment()) : nothing;
    m_summary = PerformanceText::summary(shown);
    m_leftOut = PerformanceText::leftOut(shown.withoutValues);
    m_hasLargeChart = std::ranges::any_of(shown.moments, [](const auto& moment) { return moment.time.has_value(); });
    Q_EMIT summaryChanged();
}

void PCMViewController::openLargeChart()
{
    if (m_hasLargeChart) {
        openScene(*this, Scenes::largeChartView, {m_sysName, m_metrics, segment()});
    }
}

void PCMViewController::startLoadingIndicators()
{
    setLoading(true);
}

void PCMViewController::stopLoadingIndicators()
{
    setLoading(false);
    m_chartView.animate(newDataSeconds);
}

void PCMViewController::setLoading(bool loading)
{
    m_chartView.setHidden(loading);
    m_fetchingLabel.setHidden(!loading);
    for (LabelOutlet* label : {&m_totalLabel, &m_allocatedLabel, &m_usedLabel}) {
        label->setHidden(loading);
    }
    for (IndicatorOutlet* indicator :
         {&m_fetchingActivityView, &m_totalIndicator, &m_allocatedIndicator, &m_usedIndicator}) {
        loading ? indicator->startAnimating() : indicator->stopAnimating();
    }
}

} // namespace lodestar

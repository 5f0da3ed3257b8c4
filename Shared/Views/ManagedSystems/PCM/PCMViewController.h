// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"
#include "Inventory/Metrics/MetricsReduction.h"
#include "Inventory/Metrics/MetricsTimeline.h"
#include "Kit/Core/Bars.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"
#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/TitleHeader.h"
#include "Views/ManagedSystems/PCM/PerformanceText.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// The performance of one managed system: its total, allocated and used processors or memory as lines, and the latest
/// of each as a number. Every choice of a segment fetches the whole document anew. Main thread.
class PCMViewController : public lodestar::ViewController, public CorvelReceiving, private ChartViewDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::PlotChartView* chartView READ chartView CONSTANT)
    Q_PROPERTY(lodestar::SegmentedControlOutlet* typeSegmentedControl READ typeSegmentedControl CONSTANT)
    Q_PROPERTY(lodestar::BarButtonOutlet* rightBarButton READ rightBarButton CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* fetchingLabel READ fetchingLabel CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* fetchingActivityView READ fetchingActivityView CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* totalLabel READ totalLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* allocatedLabel READ allocatedLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* usedLabel READ usedLabel CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* totalIndicator READ totalIndicator CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* allocatedIndicator READ allocatedIndicator CONSTANT)
    Q_PROPERTY(lodestar::IndicatorOutlet* usedIndicator READ usedIndicator CONSTANT)
    Q_PROPERTY(QList<lodestar::PerformanceSummaryRow> summary READ summary NOTIFY summaryChanged)
    Q_PROPERTY(QString leftOut READ leftOut NOTIFY summaryChanged)
    Q_PROPERTY(bool hasLargeChart READ hasLargeChart NOTIFY summaryChanged)

public:
    PCMViewController();

    /// Nothing when the opener gave no name; the title is then empty.
    const std::optional<std::string>& sysName() const { return m_sysName; }
    void setSysName(std::optional<std::string> sysName) { m_sysName = std::move(sysName); }
    const std::optional<std::string>& systemID() const { return m_systemID; }
    void setSystemID(std::optional<std::string> systemID) { m_systemID = std::move(systemID); }
    /// Of the first and the last sample when they were last charted; none before and for a stamp that cannot be read.
    const std::optional<MetricsDate>& startDate() const { return m_startDate; }
    const std::optional<MetricsDate>& endDate() const { return m_endDate; }

    TitleHeader* header() { return &m_header; }
    PlotChartView* chartView() { return &m_chartView; }
    /// Segment 0 is processors, segment 1 memory.
    SegmentedControlOutlet* typeSegmentedControl() { return &m_typeSegmentedControl; }
    /// The button that fetches anew; visible only after a failure.
    BarButtonOutlet* rightBarButton() { return &m_rightBarButton; }
    LabelOutlet* fetchingLabel() { return &m_fetchingLabel; }
    IndicatorOutlet* fetchingActivityView() { return &m_fetchingActivityView; }
    /// The latest values with two decimals, "-" after a failure. A spinner replaces each value while it is fetched.
    LabelOutlet* totalLabel() { return &m_totalLabel; }
    LabelOutlet* allocatedLabel() { return &m_allocatedLabel; }
    LabelOutlet* usedLabel() { return &m_usedLabel; }
    IndicatorOutlet* totalIndicator() { return &m_totalIndicator; }
    IndicatorOutlet* allocatedIndicator() { return &m_allocatedIndicator; }
    IndicatorOutlet* usedIndicator() { return &m_usedIndicator; }

    /// What the charted series were over all samples; empty before there are any.
    const QList<PerformanceSummaryRow>& summary() const { return m_summary; }
    /// How many samples are not in the summary, as a sentence; empty for none.
    const QString& leftOut() const { return m_leftOut; }
    /// Whether any sample has a time, so that it can be charted over time.
    bool hasLargeChart() const { return m_hasLargeChart; }
    /// Opens the large chart over what was fetched; nothing is fetched again.
    Q_INVOKABLE void openLargeChart();

    /// Handles a choice in the segmented control.
    Q_INVOKABLE void selectedSegmentedIndex(int index);
    /// Starts a fetch. An earlier fetch that still runs continues, but its result is not shown.
    void fetchPCMData();
    /// Charts an array of samples for the chosen segment.
    void calculateGraphValuesFromJSON(const MetricsValue& samples);
    void startLoadingIndicators();
    void stopLoadingIndicators();

Q_SIGNALS:
    void summaryChanged();

protected:
    void viewDidLoad() override;

private:
    void configureChart();
    void setLoading(bool loading);
    void showMetrics(const MetricsDocument& document);
    void showFailure();
    void setLatest(const MetricsFigures& figures);
    void setChartData(const MetricsReduction& reduction, MetricsSegment segment);
    /// Null after a failure.
    void setMetrics(std::shared_ptr<const PerformanceMetrics> metrics);
    MetricsSegment segment() const;
    QString name() const;

    std::optional<std::string> m_sysName;
    std::optional<std::string> m_systemID;
    std::optional<MetricsDate> m_startDate;
    std::optional<MetricsDate> m_endDate;
    /// Number of fetches so far; only the latest fetch is shown.
    std::uint64_t m_fetch = 0;
    std::shared_ptr<const PerformanceMetrics> m_metrics;
    QList<PerformanceSummaryRow> m_summary;
    QString m_leftOut;
    bool m_hasLargeChart = false;

    TitleHeader m_header;
    PlotChartView m_chartView;
    SegmentedControlOutlet m_typeSegmentedControl;
    BarButtonOutlet m_rightBarButton;
    LabelOutlet m_fetchingLabel;
    IndicatorOutlet m_fetchingActivityView;
    LabelOutlet m_totalLabel;
    LabelOutlet m_allocatedLabel;
    LabelOutlet m_usedLabel;
    IndicatorOutlet m_totalIndicator;
    IndicatorOutlet m_allocatedIndicator;
    IndicatorOutlet m_usedIndicator;
};

} // namespace lodestar

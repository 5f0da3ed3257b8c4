// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"
#include "Inventory/Metrics/MetricsTimeline.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/ViewController.h"
#include "Views/Common/TitleHeader.h"
#include "Views/ManagedSystems/PCM/PerformanceText.h"

#include <QPointer>

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace lodestar
{

/// The metrics of one managed system over time, in a screen that leaves no room to the tab bar. Series can be switched
/// off but for the last one; allocated can stand as bars behind the lines. Everything comes from what the opener gave:
/// nothing is fetched. Main thread.
class LargeChartViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TitleHeader* header READ header CONSTANT)
    Q_PROPERTY(lodestar::PlotChartView* chartView READ chartView CONSTANT)
    Q_PROPERTY(lodestar::SegmentedControlOutlet* typeSegmentedControl READ typeSegmentedControl CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* shareMenu READ shareMenu CONSTANT)
    Q_PROPERTY(QStringList seriesNames READ seriesNames CONSTANT)
    Q_PROPERTY(QStringList latest READ latest NOTIFY chartChanged)
    Q_PROPERTY(QList<bool> shown READ shown NOTIFY chartChanged)
    Q_PROPERTY(bool barsShown READ areBarsShown WRITE setBarsShown NOTIFY chartChanged)
    Q_PROPERTY(QList<int> drawnSeries READ drawnSeries NOTIFY chartChanged)
    Q_PROPERTY(QList<lodestar::PerformanceSummaryRow> summary READ summary NOTIFY chartChanged)
    Q_PROPERTY(QString leftOut READ leftOut NOTIFY chartChanged)
    Q_PROPERTY(QString readTime READ readTime NOTIFY readingChanged)
    Q_PROPERTY(QStringList readValues READ readValues NOTIFY readingChanged)
    Q_PROPERTY(QString readText READ readText NOTIFY readingChanged)

public:
    LargeChartViewController();

    void setSysName(std::optional<std::string> sysName) { m_sysName = std::move(sysName); }
    /// Never null.
    void setMetrics(std::shared_ptr<const PerformanceMetrics> metrics) { m_metrics = std::move(metrics); }
    void setSegment(MetricsSegment segment);

    TitleHeader* header() { return &m_header; }
    PlotChartView* chartView() { return &m_chartView; }
    /// Segment 0 is processors, segment 1 memory.
    SegmentedControlOutlet* typeSegmentedControl() { return &m_typeSegmentedControl; }
    MenuOutlet* shareMenu() { return &m_shareMenu; }
    /// Of total, allocated and used: the names, the latest values, and which are shown.
    static QStringList seriesNames() { return PerformanceText::shortNames(); }
    const QStringList& latest() const { return m_latest; }
    QList<bool> shown() const { return QList<bool>(m_shown.begin(), m_shown.end()); }
    bool areBarsShown() const { return m_barsShown; }
    void setBarsShown(bool shown);
    /// The numbers of the series in the order of the chart's data sets, bars before lines.
    QList<int> drawnSeries() const;
    const QList<PerformanceSummaryRow>& summary() const { return m_summary; }
    /// How many samples are not in the chart, as sentences; empty for none.
    const QString& leftOut() const { return m_leftOut; }
    /// When the entry was taken that is read, the values of the shown series at it, and both as a voice says them;
    /// empty while the chart is not read.
    const QString& readTime() const { return m_readTime; }
    const QStringList& readValues() const { return m_readValues; }
    const QString& readText() const { return m_readText; }

    /// Handles a choice in the segmented control.
    Q_INVOKABLE void selectedSegmentedIndex(int index);
    /// Switches one of the three series on or off.
    Q_INVOKABLE void toggleSeries(int series);
    /// Asks what to save.
    Q_INVOKABLE void share();
    Q_INVOKABLE void savePoints();

    /// All samples of the segment, whatever is in view, as comma-separated values.
    QByteArray points() const;
    /// What is in view with its title and legend, as a PNG of the light appearance.
    QByteArray picture();

Q_SIGNALS:
    void chartChanged();
    void readingChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

private:
    void configureChart();
    void showSegment();
    /// Draws the track's shown series; the part of the time in view stays.
    void drawSeries();
    void showReading();
    const MetricsTimeline& timeline() const;
    MetricsSegment segment() const;
    QString fileName(const char* ending) const;

    std::optional<std::string> m_sysName;
    std::shared_ptr<const PerformanceMetrics> m_metrics = std::make_shared<const PerformanceMetrics>();
    MetricsTrack m_track;
    bool m_isOfDays = false;
    std::array<bool, 3> m_shown = {true, true, true};
    bool m_barsShown = false;
    QStringList m_latest;
    QList<PerformanceSummaryRow> m_summary;
    QString m_leftOut;
    QString m_readTime;
    QStringList m_readValues;
    QString m_readText;

    TitleHeader m_header;
    PlotChartView m_chartView;
    SegmentedControlOutlet m_typeSegmentedControl;
    MenuOutlet m_shareMenu;
    QPointer<TabBarController> m_tabs; ///< whose bar is hidden
};

} // namespace lodestar

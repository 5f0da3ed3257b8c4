// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/PlotChartView.h"
#include "Fleet/ChangeDays.h"

#include <QStringList>

#include <chrono>
#include <vector>

namespace lodestar
{

/// Bars of the last days, the last one today: numbers of changes or of new events. A controller holds it, DayBars
/// draws it. Main thread.
class DayBarsOutlet : public QObject, public ChartViewDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by controllers")
    Q_PROPERTY(lodestar::PlotChartView* chart READ chart CONSTANT)
    Q_PROPERTY(QStringList days READ days NOTIFY daysChanged)
    Q_PROPERTY(bool hidden READ isHidden NOTIFY hiddenChanged)

public:
    DayBarsOutlet();

    PlotChartView* chart() { return &m_chart; }
    /// What a screen reader says of each day, the oldest first.
    const QStringList& days() const { return m_days; }
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);

    void showChanges(const std::vector<ChangeCount>& counts, std::chrono::local_days today);
    void showEvents(const std::vector<int>& counts, std::chrono::local_days today);
    /// Lets the bars grow out of their line.
    void grow();
    /// What a tap on a day's bars does.
    Q_INVOKABLE void choose(int day) { Q_EMIT dayChosen(day); }

    void chartValueSelected(ChartView& chartView, const ChartEntry& entry, int dataSetIndex,
                            const Highlight& highlight) override;

Q_SIGNALS:
    void daysChanged();
    void hiddenChanged();
    /// Counted as `days` are.
    void dayChosen(int day);

private:
    void show(const PlotChartData& data, const QStringList& days, const QString& spoken);

    PlotChartView m_chart;
    QStringList m_days;
    bool m_hidden = false;
};

/// The day as Qt has it.
QDate dateOf(std::chrono::local_days day);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/TimeTicks.h"
#include "Inventory/Metrics/MetricsTimeline.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// What one series was over all samples, as texts.
struct PerformanceSummaryRow {
    Q_GADGET
    QML_VALUE_TYPE(performanceSummaryRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QStringList values MEMBER values)
    Q_PROPERTY(QStringList times MEMBER times)
    Q_PROPERTY(QString spoken MEMBER spoken)

public:
    QString name;
    QStringList values; ///< lowest, mean, highest, last
    QStringList times;  ///< when each of them was; empty where that is not known, and for the mean
    QString spoken;     ///< what a screen reader says
    friend bool operator==(const PerformanceSummaryRow&, const PerformanceSummaryRow&) = default;
};

/// The words and figures of the performance screens. Times are in the device's zone. Main thread.
namespace PerformanceText
{

/// "Total Processors" and so on; three empty names for a segment that charts nothing.
QStringList seriesNames(MetricsSegment segment);
/// "Total", "Allocated", "Used".
QStringList shortNames();
/// The number with a decimal point in every language, because the figures are the console's. Ties go to the even digit,
/// as in C; Qt's own functions would round them up.
QString twoDecimals(double value);
/// "11 Mar 2026, 21:46"; empty for no time.
QString dateAndTime(const std::optional<MetricsDate>& time);
/// If one date cannot be read, the other stands alone.
QString period(const std::optional<MetricsDate>& start, const std::optional<MetricsDate>& end);
/// When a sample was taken: "05:10", among samples of more than a day "12 Mar, 05:10".
QString moment(MetricsDate time, bool isOfDays);
/// Whether samples are so far apart that a time of day alone could mean two of them.
bool isOfDays(const MetricsTimeline& timeline);
/// A label of an axis of time.
QString tick(const TimeTick& tick);

/// One row a series; none without samples.
QList<PerformanceSummaryRow> summary(const MetricsTimeline& timeline);
/// "3 samples had no values and are left out", the same of samples without a time, both, or nothing.
QString leftOut(std::size_t withoutValues, std::size_t withoutTime = 0);
/// "5:10, total 16, allocated 13, used 8.29", of the series that are shown.
QString spokenReading(MetricsDate time, bool isOfDays, const MetricsFigures& figures, const std::array<bool, 3>& shown);

} // namespace PerformanceText

} // namespace lodestar

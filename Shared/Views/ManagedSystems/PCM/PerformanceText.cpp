// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/PCM/PerformanceText.h"

#include "Charts/NumberFormatter.h"
#include "Views/Common/CellText.h"
#include "Views/Common/FeedTimeStamp.h"

#include <QCoreApplication>
#include <QDateTime>
#include <fmt/format.h>

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr std::chrono::hours dayLength{24};

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::PerformanceText)
};

QDateTime local(MetricsDate time)
{
    return QDateTime::fromSecsSinceEpoch(time.time_since_epoch().count());
}

/// "5:10": a voice says no zero before the hour.
QString spokenMoment(MetricsDate time, bool isOfDays)
{
    const QString clock = shortTime(local(time).time());
    const bool hasZero = clock.size() > 1 && clock.at(0) == QLatin1Char('0') && clock.at(1).isDigit();
    const QString shortened = clock.mid(hasZero ? 1 : 0);
    //: %1 a day, %2 a time of day
    return isOfDays ? Words::tr("%1, %2").arg(dayAndMonth(local(time).date()), shortened) : shortened;
}

QString spokenValue(const QString& words, const MetricsSummary::Value& value, bool isOfDays)
{
    const QString text = words.arg(PerformanceText::twoDecimals(value.value));
    //: %1 as in "lowest 2.80", %2 a time of day
    return value.time ? Words::tr("%1 at %2").arg(text, spokenMoment(*value.time, isOfDays)) : text;
}

QString spokenRow(const QString& name, const MetricsSummary& summary, bool isOfDays)
{
    if (summary.isFlat()) {
        //: %1 a number
        return spoken({name, Words::tr("%1 all along").arg(PerformanceText::twoDecimals(summary.last.value))});
    }
    return spoken({name, spokenValue(Words::tr("lowest %1"), summary.lowest, isOfDays),
                   Words::tr("mean %1").arg(PerformanceText::twoDecimals(summary.mean)),
                   spokenValue(Words::tr("highest %1"), summary.highest, isOfDays),
                   spokenValue(Words::tr("last %1"), summary.last, isOfDays)});
}

PerformanceSummaryRow rowOf(const QString& name, const MetricsSummary& summary, bool isOfDays)
{
    const auto when = [&](const MetricsSummary::Value& value) {
        return value.time ? PerformanceText::moment(*value.time, isOfDays) : QString();
    };
    const QString always = summary.isFlat() ? Words::tr("all along") : QString();
    PerformanceSummaryRow row;
    row.name = name;
    for (const double value : {summary.lowest.value, summary.mean, summary.highest.value, summary.last.value}) {
        row.values << PerformanceText::twoDecimals(value);
    }
    row.times = {summary.isFlat() ? always : when(summary.lowest), QString(),
                 summary.isFlat() ? always : when(summary.highest), when(summary.last)};
    row.spoken = spokenRow(name, summary, isOfDays);
    return row;
}

} // namespace

QStringList PerformanceText::seriesNames(MetricsSegment segment)
{
    switch (segment) {
    case MetricsSegment::Processors:
        return {Words::tr("Total Processors"), Words::tr("Processors Allocated"), Words::tr("Processors Used")};
    case MetricsSegment::Memory:
        return {Words::tr("Total Memory"), Words::tr("Memory Allocated"), Words::tr("Memory Used")};
    }
    return {QString(), QString(), QString()};
}

QStringList PerformanceText::shortNames()
{
    return {Words::tr("Total"), Words::tr("Allocated"), Words::tr("Used")};
}

QString PerformanceText::twoDecimals(double value)
{
    return QString::fromStdString(fmt::format("{:.2f}", value));
}

QString PerformanceText::dateAndTime(const std::optional<MetricsDate>& time)
{
    return time ? mediumDateShortTime({local(*time).date(), local(*time).time()}) : QString();
}

QString PerformanceText::period(const std::optional<MetricsDate>& start, const std::optional<MetricsDate>& end)
{
    return start && end ? QStringLiteral("%1 - %2").arg(dateAndTime(start), dateAndTime(end))
                        : dateAndTime(start) + dateAndTime(end);
}

QString PerformanceText::moment(MetricsDate time, bool isOfDays)
{
    const QString clock = shortTime(local(time).time());
    return isOfDays ? Words::tr("%1, %2").arg(dayAndMonth(local(time).date()), clock) : clock;
}

bool PerformanceText::isOfDays(const MetricsTimeline& timeline)
{
    std::optional<MetricsDate> first;
    std::optional<MetricsDate> last;
    for (const MetricsMoment& moment : timeline.moments) {
        if (moment.time) {
            first = std::min(first.value_or(*moment.time), *moment.time);
            last = std::max(last.value_or(*moment.time), *moment.time);
        }
    }
    return first && *last - *first >= dayLength;
}

QString PerformanceText::tick(const TimeTick& tick)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(tick.time);
    switch (tick.unit) {
    case TimeTick::Unit::Second:
        return time.time().toString(QStringLiteral("HH:mm:ss"));
    case TimeTick::Unit::Minute:
        return shortTime(time.time());
    case TimeTick::Unit::Day:
        return dayAndMonth(time.date());
    case TimeTick::Unit::Month:
        return QLocale().standaloneMonthName(time.date().month(), QLocale::ShortFormat);
    case TimeTick::Unit::Year:
        break;
    }
    return QString::number(time.date().year());
}

QList<PerformanceSummaryRow> PerformanceText::summary(const MetricsTimeline& timeline)
{
    const bool ofDays = isOfDays(timeline);
    const QStringList names = shortNames();
    QList<PerformanceSummaryRow> rows;
    for (const auto figure : metricsSeries) {
        if (const auto summary = summaryOf(timeline, figure)) {
            rows << rowOf(names.at(rows.size()), *summary, ofDays);
        }
    }
    return rows;
}

QString PerformanceText::leftOut(std::size_t withoutValues, std::size_t withoutTime)
{
    QStringList sentences;
    if (withoutValues > 0) {
        sentences << Words::tr("%Ln samples had no values and are left out", nullptr, static_cast<int>(withoutValues));
    }
    if (withoutTime > 0) {
        sentences << Words::tr("%Ln samples had no time and are left out of the chart", nullptr,
                               static_cast<int>(withoutTime));
    }
    return sentences.join(QLatin1Char('\n'));
}

QString PerformanceText::spokenReading(MetricsDate time, bool isOfDays, const MetricsFigures& figures,
                                       const std::array<bool, 3>& shown)
{
    const std::array<QString, 3> words = {Words::tr("total %1"), Words::tr("allocated %1"), Words::tr("used %1")};
    const NumberFormatter numbers{.maximumFractionDigits = 2};
    QStringList parts{spokenMoment(time, isOfDays)};
    for (std::size_t series = 0; series < words.size(); ++series) {
        if (shown.at(series)) {
            parts << words.at(series).arg(numbers.stringFromNumber(figures.*metricsSeries.at(series)));
        }
    }
    return spoken(parts);
}

} // namespace lodestar

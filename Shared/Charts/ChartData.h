// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/NumberFormatter.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QString>
#include <QStringList>

namespace lodestar
{

/// A font whose size is in points of the interface (device-independent pixels, as all sizes of a chart are).
QFont chartFont(const QString& family, double size);

/// One value of a chart and the index of its label among the chart's x values.
struct ChartEntry {
    float value = 0;
    int xIndex = 0;

    bool operator==(const ChartEntry&) const = default;
};

/// The entry type of bar charts, which all other data sets accept as well.
using BarChartEntry = ChartEntry;

/// Names one entry by its x index and its data set.
struct Highlight {
    int xIndex = 0;
    int dataSetIndex = 0;

    bool operator==(const Highlight&) const = default;
};

/// The settings that every kind of data set has.
struct ChartDataSet {
    QString label;
    QList<ChartEntry> entries;
    QList<QColor> colors; ///< Colours by position; the list starts over when there are more entries than colours.
    NumberFormatter valueFormatter;
    QFont valueFont = chartFont(QStringLiteral("HelveticaNeue"), 12);
    QColor valueTextColor = Qt::black;

    /// The colour at a position; mid grey when the list is empty.
    QColor colorAt(qsizetype position) const;
};

/// The one data set of a pie. A value that is negative or not finite counts as 0; a value of 0 has no slice.
struct PieChartDataSet : ChartDataSet {
    /// The entry's value, or 0 where the value is negative or not finite.
    static double chartedValue(const ChartEntry& entry);
    /// Sum of the charted values.
    double total() const;
};

/// A pie's labels and its data set.
struct PieChartData {
    QStringList xVals;
    PieChartDataSet dataSet;

    void setValueFont(const QFont& font) { dataSet.valueFont = font; }
    void setValueTextColor(const QColor& color) { dataSet.valueTextColor = color; }
    void setValueFormatter(const NumberFormatter& formatter) { dataSet.valueFormatter = formatter; }

    /// An entry's label; empty when its index points outside the labels.
    QString labelOf(const ChartEntry& entry) const { return xVals.value(entry.xIndex); }
};

/// One line. Entries whose value is not finite are left out; the line joins their neighbours. Entries may be in any
/// order: the line joins them by rising x index, and entries of the same index in the given order.
struct LineChartDataSet : ChartDataSet {
    LineChartDataSet() { valueFormatter.maximumFractionDigits = 2; }

    double lineWidth = 1;    ///< In points, as is the circle's radius.
    double circleRadius = 4; ///< Radius of the circle at every entry; 0 for no circles.
    bool drawCircleHoleEnabled = true;
};

/// The bars of one colour. An entry whose value is not finite has no bar.
struct BarChartDataSet : ChartDataSet {
    BarChartDataSet() { valueFormatter.maximumFractionDigits = 2; }
};

/// How the bars of a chart are drawn.
struct BarStyle {
    bool sharesPlace = false; ///< Bars of several data sets stand in one place and not side by side.
    double share = 0.64;      ///< Share of an x index's place that bars cover.
    double radius = 0;        ///< Points; rounds the end that does not stand on 0.
    double gap = 0;           ///< Points by which bars keep off the line at 0.
    double place = 1;         ///< X indices that a bar's place takes.

    bool operator==(const BarStyle&) const = default;
};

/// What a chart with axes shows: bars, lines, or bars with lines in front of them. Label i belongs to x index i; an
/// entry whose index is beyond the labels is charted without a label.
struct PlotChartData {
    QStringList xVals;
    QList<BarChartDataSet> barDataSets;
    QList<LineChartDataSet> lineDataSets;
    BarStyle barStyle = {};
};

} // namespace lodestar

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

/// A font of a size in points of the interface (device-independent pixels, as all sizes of a chart are).
QFont chartFont(const QString& family, double size);

/// One value of a chart and the index of its label among the chart's x values.
struct ChartEntry {
    float value = 0;
    int xIndex = 0;

    bool operator==(const ChartEntry&) const = default;
};

/// The entry type of bar charts, which every other data set accepts as well.
using BarChartEntry = ChartEntry;

/// Names one entry: the x index it has and the data set it is in.
struct Highlight {
    int xIndex = 0;
    int dataSetIndex = 0;

    bool operator==(const Highlight&) const = default;
};

/// What every kind of data set has.
struct ChartDataSet {
    QString label;
    QList<ChartEntry> entries;
    QList<QColor> colors; ///< By position; the list starts over when there are more entries than colours.
    NumberFormatter valueFormatter;
    QFont valueFont = chartFont(QStringLiteral("HelveticaNeue"), 12);
    QColor valueTextColor = Qt::black;

    /// The colour at a position; mid grey when there are no colours at all.
    QColor colorAt(qsizetype position) const;

    bool operator==(const ChartDataSet&) const = default;
};

/// The one data set of a pie. A value that is negative or not finite counts as 0, and 0 has no slice.
struct PieChartDataSet : ChartDataSet {
    /// The value as it is charted.
    static double chartedValue(const ChartEntry& entry);
    /// Sum of the charted values.
    double total() const;

    bool operator==(const PieChartDataSet&) const = default;
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

    bool operator==(const PieChartData&) const = default;
};

/// One line. Entries whose value is not finite are left out; the line joins their neighbours. Entries may arrive in any
/// order and are joined by rising x index, those of the same index in the order given.
struct LineChartDataSet : ChartDataSet {
    LineChartDataSet() { valueFormatter.maximumFractionDigits = 2; }

    double lineWidth = 1;    ///< In points, as the circle's radius.
    double circleRadius = 4; ///< Of the circle at every entry; 0 for none.
    bool drawCircleHoleEnabled = true;

    bool operator==(const LineChartDataSet&) const = default;
};

/// The labels and the lines. The label of position i belongs to x index i; an entry whose index is beyond the labels
/// is charted all the same, without a label.
struct LineChartData {
    QStringList xVals;
    QList<LineChartDataSet> dataSets;

    bool operator==(const LineChartData&) const = default;
};

/// The bars of one colour. Values that are not finite have no bar.
struct BarChartDataSet : ChartDataSet {
    BarChartDataSet() { valueFormatter.maximumFractionDigits = 2; }

    double barSpace = 0.2; ///< Share of a bar's place that stays empty, 0 to 0.9.

    bool operator==(const BarChartDataSet&) const = default;
};

/// The labels and the bars; bars of several data sets stand side by side at their x index.
struct BarChartData {
    QStringList xVals;
    QList<BarChartDataSet> dataSets;

    bool operator==(const BarChartData&) const = default;
};

/// Bars with lines in front of them, over the same labels.
struct CombinedChartData {
    QStringList xVals;
    QList<BarChartDataSet> barDataSets;
    QList<LineChartDataSet> lineDataSets;

    bool operator==(const CombinedChartData&) const = default;
};

} // namespace lodestar

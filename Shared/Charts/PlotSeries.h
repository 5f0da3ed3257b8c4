// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartData.h"
#include "Charts/PlotSpace.h"

#include <optional>
#include <vector>

namespace lodestar
{

/// A data set's entries made ready to be drawn and asked: finite, by rising x index, with the extremes of every block
/// of entries and of blocks, so that the extremes of a million are found in the time that a few hundred take. Copies
/// share entries.
class PlotSeries
{
public:
    PlotSeries() = default;
    explicit PlotSeries(const QList<ChartEntry>& entries);

    bool isEmpty() const { return m_entries.isEmpty(); }
    qsizetype size() const { return m_entries.size(); }
    const ChartEntry& at(qsizetype position) const { return m_entries.at(position); }
    const ChartEntry& latest() const { return m_entries.constLast(); }
    const PlotExtent& extent() const { return m_extent; }

    /// Position of the first entry whose x index is not below.
    qsizetype lowerBound(double index) const;
    /// The extremes of the entries of [first, last); empty for none.
    PlotInterval values(qsizetype first, qsizetype last) const;
    /// The entry nearest to an x index, the first of equals; nothing without entries.
    std::optional<ChartEntry> nearest(double index) const;

private:
    struct Extremes {
        float least;
        float greatest;

        void include(const Extremes& other);
    };

    Extremes extremesOf(qsizetype position) const { return {at(position).value, at(position).value}; }

    QList<ChartEntry> m_entries;
    std::vector<Extremes> m_blocks; ///< The last one may be shorter than the others.
    std::vector<Extremes> m_spans;  ///< Of blocks, in the same way.
    PlotExtent m_extent;
};

} // namespace lodestar

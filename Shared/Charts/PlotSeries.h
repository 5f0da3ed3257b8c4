// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartData.h"
#include "Charts/PlotSpace.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace lodestar
{

/// A data set's entries made ready to be drawn and asked: finite, by rising x index, with a pyramid of the extremes of
/// ever larger blocks of them, so that the extremes of a million are found in the time that a few hundred take. Copies
/// share entries.
class PlotSeries
{
public:
    /// Entries of the pyramid's smallest blocks.
    static constexpr qsizetype blockSize = 16;

    PlotSeries() = default;
    explicit PlotSeries(const QList<ChartEntry>& entries);

    bool isEmpty() const { return m_entries.isEmpty(); }
    qsizetype size() const { return m_entries.size(); }
    const ChartEntry& at(qsizetype position) const { return m_entries.at(position); }
    const ChartEntry& latest() const { return m_entries.constLast(); }
    const PlotExtent& extent() const { return m_extent; }
    /// Whether every x index follows the one before, as those of samples mostly do.
    bool isGapless() const { return m_isGapless; }

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

        void include(const Extremes& other)
        {
            least = std::min(least, other.least);
            greatest = std::max(greatest, other.greatest);
        }
    };
    /// A step of the pyramid; its last block may be shorter than the others.
    struct Level {
        qsizetype size; ///< Entries of a block, a power of two.
        std::vector<Extremes> blocks;
    };

    Extremes extremesOf(qsizetype position) const { return {at(position).value, at(position).value}; }
    void buildPyramid();

    QList<ChartEntry> m_entries;
    std::vector<Level> m_levels;
    PlotExtent m_extent;
    bool m_isGapless = false;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartData.h"
#include "Charts/PlotSpace.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace lodestar
{

/// The entries of a data set, prepared for drawing and queries: finite only and by rising x index. A pyramid holds the
/// extremes of ever larger blocks of entries, so that the extremes of a million entries are found in the time that a
/// few hundred would take. Copies share the entries.
class PlotSeries
{
public:
    /// Entries per block of the pyramid's lowest level.
    static constexpr qsizetype blockSize = 16;

    PlotSeries() = default;
    explicit PlotSeries(const QList<ChartEntry>& entries);

    bool isEmpty() const { return m_entries.isEmpty(); }
    qsizetype size() const { return m_entries.size(); }
    const ChartEntry& at(qsizetype position) const { return m_entries.at(position); }
    const ChartEntry& latest() const { return m_entries.constLast(); }
    const PlotExtent& extent() const { return m_extent; }
    /// Whether every x index is one above the index before, as with most samples.
    bool isGapless() const { return m_isGapless; }

    /// Position of the first entry whose x index is not below `index`.
    qsizetype lowerBound(double index) const;
    /// The least and greatest value of the entries [first, last); empty when there are none.
    PlotInterval values(qsizetype first, qsizetype last) const;
    /// The entry nearest to an x index, the first among equals; nothing without entries.
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
    /// A level of the pyramid; its last block may be shorter than the others.
    struct Level {
        qsizetype size; ///< Entries per block, a power of two.
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

// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotSeries.h"

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr qsizetype fan = 4; // Blocks of one level that a block of the level above spans.

bool isFinite(const ChartEntry& entry)
{
    return std::isfinite(entry.value);
}

bool isBefore(const ChartEntry& first, const ChartEntry& second)
{
    return first.xIndex < second.xIndex;
}

} // namespace

PlotSeries::PlotSeries(const QList<ChartEntry>& entries) : m_entries(entries)
{
    // Entries are mostly finite and in order already; then the list stays shared with the data set.
    if (!std::all_of(entries.cbegin(), entries.cend(), isFinite)) {
        m_entries.removeIf([](const ChartEntry& entry) { return !isFinite(entry); });
    }
    if (!std::is_sorted(m_entries.cbegin(), m_entries.cend(), isBefore)) {
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
    }
    if (m_entries.isEmpty()) {
        return;
    }
    buildPyramid();
    m_isGapless = std::adjacent_find(m_entries.cbegin(), m_entries.cend(), [](const auto& first, const auto& second) {
                      return qint64{second.xIndex} - first.xIndex != 1;
                  }) == m_entries.cend();
    m_extent.x = {static_cast<double>(m_entries.constFirst().xIndex),
                  static_cast<double>(m_entries.constLast().xIndex)};
    m_extent.y = values(0, m_entries.size());
}

void PlotSeries::buildPyramid()
{
    const auto reduce = [](std::vector<Extremes>& blocks, qsizetype count, qsizetype perBlock, auto extremes) {
        blocks.reserve(static_cast<std::size_t>((count + perBlock - 1) / perBlock));
        for (qsizetype i = 0; i < count; ++i) {
            if (i % perBlock == 0) {
                blocks.push_back(extremes(i));
            } else {
                blocks.back().include(extremes(i));
            }
        }
    };
    Level level{blockSize, {}};
    reduce(level.blocks, size(), blockSize, [this](qsizetype i) { return extremesOf(i); });
    while (level.blocks.size() > fan) {
        Level above{level.size * fan, {}};
        reduce(above.blocks, static_cast<qsizetype>(level.blocks.size()), fan,
               [&level](qsizetype i) { return level.blocks[static_cast<std::size_t>(i)]; });
        m_levels.push_back(std::move(level));
        level = std::move(above);
    }
    m_levels.push_back(std::move(level));
}

qsizetype PlotSeries::lowerBound(double index) const
{
    if (m_isGapless) {
        // Samples mostly have no gaps, and a search among a million of them would cost more than drawing the result.
        const double position = std::ceil(index - m_entries.constFirst().xIndex);
        return position > 0 ? static_cast<qsizetype>(std::min(position, static_cast<double>(size()))) : 0;
    }
    const auto found = std::lower_bound(m_entries.cbegin(), m_entries.cend(), index,
                                        [](const ChartEntry& entry, double x) { return entry.xIndex < x; });
    return found - m_entries.cbegin();
}

PlotInterval PlotSeries::values(qsizetype first, qsizetype last) const
{
    if (first >= last) {
        return {};
    }
    Extremes found = extremesOf(first);
    for (qsizetype i = first; i < last;) {
        // The largest block that begins at `i` and does not go beyond `last`.
        const Level* largest = nullptr;
        for (const Level& level : m_levels) {
            if ((i & (level.size - 1)) != 0 || i + level.size > last) {
                break;
            }
            largest = &level;
        }
        found.include(largest != nullptr ? largest->blocks[static_cast<std::size_t>(i / largest->size)]
                                         : extremesOf(i));
        i += largest != nullptr ? largest->size : 1;
    }
    return {found.least, found.greatest};
}

std::optional<ChartEntry> PlotSeries::nearest(double index) const
{
    if (m_entries.isEmpty()) {
        return std::nullopt;
    }
    const qsizetype after = std::min(lowerBound(index), lowerBound(latest().xIndex));
    const qsizetype before = lowerBound(m_entries.at(std::max<qsizetype>(after - 1, 0)).xIndex);
    return index - m_entries.at(before).xIndex <= m_entries.at(after).xIndex - index ? m_entries.at(before)
                                                                                     : m_entries.at(after);
}

} // namespace lodestar

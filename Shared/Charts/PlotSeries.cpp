// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotSeries.h"

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr qsizetype blockSize = 16;
constexpr qsizetype spanSize = 256; // A multiple.

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
    // Entries mostly come in order; then they stay shared with the data set.
    if (!std::all_of(entries.cbegin(), entries.cend(), isFinite)) {
        m_entries.removeIf([](const ChartEntry& entry) { return !isFinite(entry); });
    }
    if (!std::is_sorted(m_entries.cbegin(), m_entries.cend(), isBefore)) {
        std::stable_sort(m_entries.begin(), m_entries.end(), isBefore);
    }
    if (m_entries.isEmpty()) {
        return;
    }
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        if (i % blockSize == 0) {
            m_blocks.push_back(extremesOf(i));
        }
        m_blocks.back().include(extremesOf(i));
    }
    constexpr auto blocksPerSpan = static_cast<std::size_t>(spanSize / blockSize);
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        if (i % blocksPerSpan == 0) {
            m_spans.push_back(m_blocks[i]);
        }
        m_spans.back().include(m_blocks[i]);
    }
    m_extent.x = {static_cast<double>(m_entries.constFirst().xIndex),
                  static_cast<double>(m_entries.constLast().xIndex)};
    m_extent.y = values(0, m_entries.size());
}

void PlotSeries::Extremes::include(const Extremes& other)
{
    least = std::min(least, other.least);
    greatest = std::max(greatest, other.greatest);
}

qsizetype PlotSeries::lowerBound(double index) const
{
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
        if (i % spanSize == 0 && i + spanSize <= last) {
            found.include(m_spans[static_cast<std::size_t>(i / spanSize)]);
            i += spanSize;
        } else if (i % blockSize == 0 && i + blockSize <= last) {
            found.include(m_blocks[static_cast<std::size_t>(i / blockSize)]);
            i += blockSize;
        } else {
            found.include(extremesOf(i));
            ++i;
        }
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

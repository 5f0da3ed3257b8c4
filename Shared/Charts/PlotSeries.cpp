// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotSeries.h"

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr qsizetype blockSize = 256;

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
    for (qsizetype start = 0; start < m_entries.size(); start += blockSize) {
        Extremes block{m_entries.at(start).value, m_entries.at(start).value};
        for (qsizetype i = start; i < std::min(start + blockSize, m_entries.size()); ++i) {
            block.least = std::min(block.least, m_entries.at(i).value);
            block.greatest = std::max(block.greatest, m_entries.at(i).value);
        }
        m_blocks.push_back(block);
    }
    m_extent.x = {static_cast<double>(m_entries.constFirst().xIndex),
                  static_cast<double>(m_entries.constLast().xIndex)};
    m_extent.y = values(0, m_entries.size());
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
    float least = m_entries.at(first).value;
    float greatest = least;
    for (qsizetype i = first; i < last;) {
        if (i % blockSize == 0 && i + blockSize <= last) {
            const Extremes& block = m_blocks[static_cast<std::size_t>(i / blockSize)];
            least = std::min(least, block.least);
            greatest = std::max(greatest, block.greatest);
            i += blockSize;
        } else {
            least = std::min(least, m_entries.at(i).value);
            greatest = std::max(greatest, m_entries.at(i).value);
            ++i;
        }
    }
    return {least, greatest};
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

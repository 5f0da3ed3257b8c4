// SPDX-License-Identifier: Apache-2.0
// The part of TableOutlet that finds rows again, and waits while rows are touched.
#include "Kit/Core/OnMain.h"
#include "Kit/Core/Table.h"

#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

/// Which of the keys before are kept: those that are there afterwards, too, as far as their order has not changed.
std::vector<bool> keptInOrder(const std::vector<std::size_t>& before, const std::vector<std::size_t>& after)
{
    std::unordered_map<std::size_t, std::size_t> places;
    for (std::size_t place = 0; place < after.size(); ++place) {
        places.emplace(after[place], place);
    }
    std::vector<bool> kept(before.size());
    std::size_t next = 0;
    for (std::size_t place = 0; place < before.size(); ++place) {
        const auto found = places.find(before[place]);
        if (found != places.end() && found->second >= next) {
            kept[place] = true;
            next = found->second + 1;
        }
    }
    return kept;
}

} // namespace

std::vector<std::size_t> TableOutlet::askForKeys() const
{
    std::vector<std::size_t> keys;
    for (std::size_t number = 0; number < m_sections.size(); ++number) {
        const auto section = static_cast<int>(number);
        for (int row = m_sections[number].hasHeader ? -1 : 0; row < m_sections[number].rows; ++row) {
            keys.push_back(m_source.keyForRowAtIndexPath(m_kind, {section, row}));
        }
    }
    return keys;
}

std::size_t TableOutlet::keyAt(int index) const
{
    const std::optional<IndexPath> path = pathAt(index);
    return path ? m_source.keyForRowAtIndexPath(m_kind, *path) : 0;
}

int TableOutlet::indexOfKey(std::size_t key) const
{
    for (int index = 0; index < m_count; ++index) {
        if (keyAt(index) == key) {
            return index;
        }
    }
    return -1;
}

void TableOutlet::reloadRows()
{
    const int before = m_count;
    const int rowsBefore = rows();
    if (m_keys.size() != static_cast<std::size_t>(before) || before == 0) {
        reloadOnMain();
        m_keys = askForKeys();
        return;
    }
    setRemovalAnimated(false);
    setRowsFade(true);
    // From here on `data` answers for the new shape. Rows that the list makes before all is said are asked for again
    // with all the others.
    int count = 0;
    m_sections = askForShape(count);
    std::vector<std::size_t> keys = askForKeys();
    const std::vector<bool> stays = keptInOrder(m_keys, keys);
    for (int end = before; end > 0;) {
        int start = end;
        while (start > 0 && !stays[static_cast<std::size_t>(start - 1)]) {
            --start;
        }
        if (start < end) {
            beginRemoveRows({}, start, end - 1);
            m_count -= end - start;
            endRemoveRows();
        }
        end = start - 1;
    }
    std::vector<std::size_t> kept;
    for (std::size_t place = 0; place < m_keys.size(); ++place) {
        if (stays[place]) {
            kept.push_back(m_keys[place]);
        }
    }
    const int cellsKept = m_count;
    std::size_t next = 0;
    for (int start = 0; start < count;) {
        int end = start;
        while (end < count && (next == kept.size() || keys[static_cast<std::size_t>(end)] != kept[next])) {
            ++end;
        }
        if (start < end) {
            beginInsertRows({}, start, end - 1);
            m_count += end - start;
            endInsertRows();
        }
        ++next;
        start = end + 1;
    }
    m_keys = std::move(keys);
    if (count != before || rows() != rowsBefore) {
        Q_EMIT countChanged();
    }
    didReload(cellsKept);
}

void TableOutlet::setTouched(bool touched)
{
    if (m_touched != touched) {
        m_touched = touched;
        Q_EMIT touchedChanged();
        if (!touched && m_whenUntouched) {
            MainQueue::shared().async([guard = QPointer<TableOutlet>(this)] {
                if (guard) {
                    guard->doWhenUntouched();
                }
            });
        }
    }
}

void TableOutlet::whenUntouched(std::function<void()> then)
{
    m_whenUntouched = std::move(then);
    doWhenUntouched();
}

void TableOutlet::doWhenUntouched()
{
    if (!m_touched && m_whenUntouched) {
        std::exchange(m_whenUntouched, nullptr)();
    }
}

} // namespace lodestar

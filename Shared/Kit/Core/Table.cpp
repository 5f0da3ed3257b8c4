// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Table.h"

#include "Kit/Core/OnMain.h"

#include <QQmlEngine>

#include <algorithm>
#include <numeric>
#include <utility>

namespace lodestar
{
TableOutlet::TableOutlet(TableDataSource& source, TableKind kind, QObject* parent)
    : QAbstractListModel(parent), m_source(source), m_kind(kind)
{
    // The source must not be called here: it is usually the controller that is being constructed.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void TableOutlet::setHidden(bool hidden)
{
    assignOnMain(this, &TableOutlet::m_hidden, hidden, &TableOutlet::hiddenChanged);
}

void TableOutlet::setSeparatorInset(double left, double right)
{
    if (m_separatorLeft != left || m_separatorRight != right) {
        m_separatorLeft = left;
        m_separatorRight = right;
        Q_EMIT separatorChanged();
    }
}

void TableOutlet::setRowHeight(double height)
{
    if (m_rowHeight != height) {
        m_rowHeight = height;
        Q_EMIT rowHeightChanged();
    }
}

int TableOutlet::rows() const
{
    return std::accumulate(m_sections.begin(), m_sections.end(), 0,
                           [](int sum, const SectionInfo& section) { return sum + section.rows; });
}

std::vector<TableOutlet::SectionInfo> TableOutlet::askForShape(int& count) const
{
    std::vector<SectionInfo> sections(static_cast<std::size_t>(std::max(0, m_source.numberOfSections(m_kind))));
    count = 0;
    int number = 0;
    for (SectionInfo& section : sections) {
        const std::optional<QString> title = m_source.titleForHeaderInSection(m_kind, number);
        section.start = count;
        section.rows = std::max(0, m_source.numberOfRowsInSection(m_kind, number));
        section.hasHeader = title.has_value();
        section.title = title.value_or(QString());
        section.detail = m_source.detailForHeaderInSection(m_kind, number);
        section.note = m_source.noteForHeaderInSection(m_kind, number);
        section.footer = m_source.footerForSection(m_kind, number);
        count += section.rows + (section.hasHeader ? 1 : 0);
        ++number;
    }
    return sections;
}

void TableOutlet::reloadData()
{
    onMain(this, [](TableOutlet& table) { table.reloadOnMain(); });
}

void TableOutlet::reloadOnMain()
{
    int count = 0;
    std::vector<SectionInfo> sections = askForShape(count);
    const int before = m_count;
    const int rowsBefore = rows();
    const auto adopt = [&] {
        m_sections = std::move(sections);
        m_count = count;
    };
    // Rows are inserted and removed at the list's end only; every remaining row gets its new content as a cell.
    m_keys.clear();
    setRowsFade(false);
    if (count < before) {
        setRemovalAnimated(false);
        beginRemoveRows({}, count, before - 1);
        adopt();
        endRemoveRows();
    } else if (count > before) {
        beginInsertRows({}, before, count - 1);
        adopt();
        endInsertRows();
    } else {
        adopt();
    }
    if (count != before || rows() != rowsBefore) {
        Q_EMIT countChanged();
    }
    didReload(std::min(before, count));
}

void TableOutlet::didReload(int cellsKept)
{
    Q_EMIT reloaded();
    if (cellsKept > 0 && !std::exchange(m_announcePending, true)) {
        MainQueue::shared().async([guard = QPointer<TableOutlet>(this)] {
            if (guard) {
                guard->announceCells();
            }
        });
    }
}

void TableOutlet::announceCells()
{
    m_announcePending = false;
    if (m_count > 0) {
        Q_EMIT dataChanged(index(0), index(m_count - 1));
    }
}

void TableOutlet::setRemovalAnimated(bool animated)
{
    if (m_removalAnimated != animated) {
        m_removalAnimated = animated;
        Q_EMIT removalAnimatedChanged();
    }
}

void TableOutlet::setRowsFade(bool fade)
{
    if (m_rowsFade != fade) {
        m_rowsFade = fade;
        Q_EMIT rowsFadeChanged();
    }
}

void TableOutlet::deleteRow(IndexPath indexPath, RowAnimation animation)
{
    const int flat = flatIndex(indexPath);
    if (flat < 0) {
        reloadData();
        return;
    }
    setRowsFade(false);
    setRemovalAnimated(animation == RowAnimation::Left);
    if (static_cast<std::size_t>(flat) < m_keys.size()) {
        m_keys.erase(m_keys.begin() + flat);
    }
    beginRemoveRows({}, flat, flat);
    const auto section = static_cast<std::size_t>(indexPath.section);
    --m_sections[section].rows;
    std::for_each(m_sections.begin() + indexPath.section + 1, m_sections.end(),
                  [](SectionInfo& later) { --later.start; });
    --m_count;
    endRemoveRows();
    Q_EMIT countChanged();
    // Row numbers within the section have changed, and the section may have another first or last row; no cell changed.
    const int first = m_sections[section].start;
    const int last = std::min(m_count - 1, first + m_sections[section].rows);
    if (first <= last) {
        Q_EMIT dataChanged(index(first), index(last), {Row, FirstInSection, LastInSection});
    }
}

QVariant TableOutlet::configureCell(int index) const
{
    const std::optional<IndexPath> path = pathAt(index);
    return path && path->row >= 0 ? m_source.cellForRowAtIndexPath(m_kind, *path) : QVariant();
}

CellInSteps TableOutlet::configureCellInSteps(int index) const
{
    const std::optional<IndexPath> path = pathAt(index);
    return path && path->row >= 0 ? m_source.cellInStepsForRowAtIndexPath(m_kind, *path) : CellInSteps();
}

int TableOutlet::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant TableOutlet::data(const QModelIndex& index, int role) const
{
    const std::optional<IndexPath> path = pathAt(index.row());
    if (!path) {
        return {};
    }
    const SectionInfo& section = m_sections[static_cast<std::size_t>(path->section)];
    switch (role) {
    case IsHeader:
        return path->row < 0;
    case HeaderTitle:
        return path->row < 0 ? section.title : QString();
    case Section:
        return path->section;
    case Row:
        return path->row;
    case FirstInSection:
        return path->row == 0;
    case LastInSection:
        return path->row >= 0 && path->row == section.rows - 1;
    case SectionHasHeader:
        return section.hasHeader;
    case HeaderDetail:
        return path->row < 0 ? section.detail : QString();
    case HeaderNote:
        return path->row < 0 ? section.note : QString();
    case SectionFooter:
        return path->row >= 0 && path->row == section.rows - 1 ? section.footer : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> TableOutlet::roleNames() const
{
    return {{IsHeader, "isHeader"},
            {HeaderTitle, "headerTitle"},
            {Section, "section"},
            {Row, "row"},
            {FirstInSection, "firstInSection"},
            {LastInSection, "lastInSection"},
            {SectionHasHeader, "sectionHasHeader"},
            {HeaderDetail, "headerDetail"},
            {HeaderNote, "headerNote"},
            {SectionFooter, "sectionFooter"}};
}

bool TableOutlet::isHeaderAt(int index) const
{
    const std::optional<IndexPath> path = pathAt(index);
    return path && path->row < 0;
}

void TableOutlet::select(int index)
{
    const std::optional<IndexPath> path = pathAt(index);
    if (path && path->row >= 0) {
        m_source.didSelectRowAtIndexPath(m_kind, *path);
    }
}

void TableOutlet::setEditing(bool editing, bool /*animated*/)
{
    if (!editing) {
        Q_EMIT closeSwipesRequested();
    }
}

void TableOutlet::deselectRow(IndexPath indexPath)
{
    const int flat = flatIndex(indexPath);
    if (flat >= 0) {
        Q_EMIT deselected(flat);
    }
}

std::optional<IndexPath> TableOutlet::pathAt(int index) const
{
    if (index < 0 || index >= m_count) {
        return {};
    }
    // The last section that starts at or before the index. Empty sections without a header share their start with the
    // next.
    const auto after = std::upper_bound(m_sections.begin(), m_sections.end(), index,
                                        [](int place, const SectionInfo& section) { return place < section.start; });
    if (after == m_sections.begin()) {
        return {}; // Only while rows are being removed.
    }
    const auto section = std::prev(after);
    const int row = index - section->start - (section->hasHeader ? 1 : 0);
    if (row >= section->rows) {
        return {};
    }
    return IndexPath{static_cast<int>(section - m_sections.begin()), row};
}

int TableOutlet::flatIndex(IndexPath indexPath) const
{
    if (indexPath.section < 0 || indexPath.section >= static_cast<int>(m_sections.size())) {
        return -1;
    }
    const SectionInfo& section = m_sections[static_cast<std::size_t>(indexPath.section)];
    if (indexPath.row < 0 || indexPath.row >= section.rows) {
        return -1;
    }
    return section.start + (section.hasHeader ? 1 : 0) + indexPath.row;
}

void RefreshControl::pull()
{
    if (!m_refreshing) {
        m_refreshing = true;
        Q_EMIT refreshingChanged();
        Q_EMIT valueChanged();
    }
}

void RefreshControl::endRefreshing()
{
    onMain(this, [](RefreshControl& control) {
        if (std::exchange(control.m_refreshing, false)) {
            Q_EMIT control.refreshingChanged();
        }
    });
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/MenuTableViewController.h"

namespace lodestar
{
namespace
{

constexpr double rowHeight = 52;
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

} // namespace

MenuTableViewController::MenuTableViewController() : m_tableView(*this, TableKind::Main)
{
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
}

void MenuTableViewController::viewDidLoad()
{
    reload();
}

void MenuTableViewController::viewDidAppear()
{
    reload();
}

void MenuTableViewController::reload()
{
    m_sections = makeSections();
    m_tableView.reloadData();
}

int MenuTableViewController::numberOfSections(TableKind /*tableView*/) const
{
    return static_cast<int>(m_sections.size());
}

int MenuTableViewController::numberOfRowsInSection(TableKind /*tableView*/, int section) const
{
    const auto index = static_cast<std::size_t>(section);
    return section >= 0 && index < m_sections.size() ? static_cast<int>(m_sections[index].size()) : 0;
}

const MenuTableViewController::Row* MenuTableViewController::rowAt(IndexPath indexPath) const
{
    return indexPath.row >= 0 && indexPath.row < numberOfRowsInSection(TableKind::Main, indexPath.section)
               ? &m_sections[static_cast<std::size_t>(indexPath.section)][static_cast<std::size_t>(indexPath.row)]
               : nullptr;
}

QVariant MenuTableViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const Row* const row = rowAt(indexPath);
    return QVariant::fromValue(row == nullptr ? MenuCell{}
                                              : MenuCell{row->title, row->imageName, row->detail, !row->open});
}

void MenuTableViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    if (const Row* const row = rowAt(indexPath); row != nullptr && row->open) {
        row->open();
    }
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar

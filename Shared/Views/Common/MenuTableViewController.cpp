// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/MenuTableViewController.h"

#include "Kit/Core/Storyboard.h"

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
}

void MenuTableViewController::viewDidLoad()
{
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
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

QVariant MenuTableViewController::cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath)
{
    if (indexPath.row < 0 || indexPath.row >= numberOfRowsInSection(tableView, indexPath.section)) {
        return QVariant::fromValue(MenuCell{});
    }
    const Row& row = m_sections[static_cast<std::size_t>(indexPath.section)][static_cast<std::size_t>(indexPath.row)];
    const bool rests = row.scene.empty();
    return QVariant::fromValue(
        MenuCell{row.title, row.imageName, row.detail, rests, rests || Storyboard::main().hasScene(row.scene)});
}

void MenuTableViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    openRow(indexPath);
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar

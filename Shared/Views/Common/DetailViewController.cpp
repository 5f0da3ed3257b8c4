// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/DetailViewController.h"

#include "Kit/Core/Clipboard.h"
#include "Kit/Core/LineText.h"
#include "Views/Find/OpenFind.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 50;
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;
/// Of a value, the menu shows no more than its lines could hold.
constexpr qsizetype longestShown = 200;
/// What rows show for an absent text.
constexpr QLatin1String absent("(null)");

} // namespace

DetailViewController::DetailViewController(char16_t separator)
    : m_separator(separator), m_tableView(*this, TableKind::Main)
{
    m_tableView.setRowHeight(rowHeight);
    m_tableView.setSeparatorInset(separatorLeft, separatorRight);
}

QString DetailViewController::row(const QString& label, const QString& value) const
{
    return label + m_separator + value;
}

QString DetailViewController::row(const QString& label, const std::optional<std::string>& value) const
{
    return row(label, QString::fromStdString(shownText(value)));
}

DetailSection DetailViewController::modelAndSerial(const MachineIdentity& machine) const
{
    return {row(tr("Serial Number"), machine.serialNumber()), row(tr("Machine Type"), machine.machineType()),
            row(tr("Model"), machine.model())};
}

void DetailViewController::setTableData(std::vector<DetailSection> sections)
{
    m_tableData = std::move(sections);
    m_tableView.reloadData();
}

int DetailViewController::numberOfSections(TableKind /*tableView*/) const
{
    return static_cast<int>(m_tableData.size());
}

int DetailViewController::numberOfRowsInSection(TableKind /*tableView*/, int section) const
{
    const auto index = static_cast<std::size_t>(section);
    return section >= 0 && index < m_tableData.size() ? static_cast<int>(m_tableData[index].size()) : 0;
}

std::optional<QString> DetailViewController::titleForHeaderInSection(TableKind /*tableView*/, int section) const
{
    return m_sectionTitles.value(section, QStringLiteral(""));
}

QString DetailViewController::rowAt(IndexPath indexPath) const
{
    if (indexPath.row < 0 || indexPath.row >= numberOfRowsInSection(TableKind::Main, indexPath.section)) {
        return {};
    }
    return m_tableData[static_cast<std::size_t>(indexPath.section)].at(indexPath.row);
}

QStringList DetailViewController::piecesAt(IndexPath indexPath) const
{
    return rowAt(indexPath).split(m_separator);
}

QString DetailViewController::wholeValueAt(IndexPath indexPath) const
{
    return rowAt(indexPath).section(m_separator, 1);
}

QString DetailViewController::valueAt(IndexPath indexPath) const
{
    return piecesAt(indexPath).value(1);
}

QVariant DetailViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    const QStringList pieces = piecesAt(indexPath);
    return QVariant::fromValue(DetailCell{pieces.value(0), pieces.value(1), leadsOn(indexPath)});
}

void DetailViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    if (leadsOn(indexPath)) {
        openRow(indexPath);
    }
    m_tableView.deselectRow(indexPath);
}

void DetailViewController::presentMenu(int section, int row)
{
    const IndexPath place{section, row};
    const QString label = piecesAt(place).value(0);
    const QString value = wholeValueAt(place);
    if (label.isEmpty()) {
        return;
    }
    std::vector<MenuChoice> choices;
    std::vector<std::function<void()>> actions;
    const auto add = [&](MenuChoice choice, std::function<void()> action) {
        choices.push_back(std::move(choice));
        actions.push_back(std::move(action));
    };
    if (!value.isEmpty()) {
        add({.title = tr("Copy Value"), .imageName = QStringLiteral("copy")}, [value] { Clipboard::copy(value); });
    }
    add({.title = tr("Copy All"), .imageName = QStringLiteral("release_notes")}, [this] { copyAll(); });
    if (!value.isEmpty() && value != absent && navigationController() != nullptr) {
        add({.title = tr("Find on All Consoles"), .imageName = QStringLiteral("search")},
            [this, value] { openFind(*this, value); });
    }
    choices.push_back({.title = tr("Cancel")});
    const int cancel = static_cast<int>(actions.size());
    m_rowMenu.present(label, oneLine(shortened(value, longestShown)), choices, cancel,
                      [actions = std::move(actions)](int choice) {
                          if (const auto index = static_cast<std::size_t>(choice); index < actions.size()) {
                              actions[index]();
                          }
                      });
}

void DetailViewController::copyValue(int section, int row)
{
    if (const QString value = wholeValueAt({section, row}); !value.isEmpty()) {
        Clipboard::copy(value);
    }
}

void DetailViewController::copyAll() const
{
    QStringList lines;
    int rows = 0;
    for (int section = 0; section < numberOfSections(TableKind::Main); ++section) {
        const int count = numberOfRowsInSection(TableKind::Main, section);
        for (int row = 0; row < count; ++row) {
            lines << oneLine(piecesAt({section, row}).value(0) + QStringLiteral(": ") + wholeValueAt({section, row}));
        }
        rows += count;
    }
    if (rows > 0) {
        Clipboard::copy(lines.join(QLatin1Char('\n')), tr("%Ln rows", nullptr, rows));
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/DetailViewController.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr double rowHeight = 50;
constexpr double separatorLeft = 10;
constexpr double separatorRight = 15;

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

QStringList DetailViewController::piecesAt(IndexPath indexPath) const
{
    if (indexPath.row < 0 || indexPath.row >= numberOfRowsInSection(TableKind::Main, indexPath.section)) {
        return {};
    }
    return m_tableData[static_cast<std::size_t>(indexPath.section)].at(indexPath.row).split(m_separator);
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

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Record.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Views/Common/DetailCell.h"

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// A section of a detail screen: row strings of the form label, separator, value.
struct DetailSection {
    QStringList data;
};

/// A screen of facts: sections of row strings, each drawn as a label over its value. Rows rest unless the screen says
/// that one leads on. A screen of this kind calls `setTableData` and, where it has titles, overrides
/// `titleForHeaderInSection`; its scene is DetailScene, which needs no delegate. Main thread.
///
/// A row is split at every separator and shows the first piece and the second. What stands behind a second separator is
/// not shown: a value that holds the separator is cut at it, and that is meant.
class DetailViewController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)

public:
    explicit DetailViewController(char16_t separator = u':');

    TableOutlet* tableView() { return &m_tableView; }
    const std::vector<DetailSection>& tableData() const { return m_tableData; }

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    /// Every section has a header; one without words is an empty header. Title by index, "" beyond.
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Every tap ends with the row deselected; a row that leads on is `openRow`ed first.
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    /// Reloads the table.
    void setTableData(std::vector<DetailSection> sections);
    void setSectionTitles(QStringList titles) { m_sectionTitles = std::move(titles); }
    /// What is shown as the row's value; empty for a row that is not there or has none.
    QString valueAt(IndexPath indexPath) const;
    virtual bool leadsOn(IndexPath /*indexPath*/) const { return false; }
    virtual void openRow(IndexPath /*indexPath*/) {}

    /// Serial number, machine type and model of a system or a console.
    DetailSection modelAndSerial(const MachineIdentity& machine) const;
    QString row(const QString& label, const QString& value) const;
    /// An absent text reads "(null)".
    QString row(const QString& label, const std::optional<std::string>& value) const;

private:
    QStringList piecesAt(IndexPath indexPath) const;

    QChar m_separator;
    TableOutlet m_tableView;
    std::vector<DetailSection> m_tableData;
    QStringList m_sectionTitles;
};

} // namespace lodestar

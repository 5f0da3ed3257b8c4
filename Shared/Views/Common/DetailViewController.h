// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Record.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// A fact on a detail screen: a label over its value.
struct DetailCell {
    Q_GADGET
    QML_VALUE_TYPE(detailCell)
    Q_PROPERTY(QString textLabel MEMBER textLabel)
    Q_PROPERTY(QString detailTextLabel MEMBER detailTextLabel)
    Q_PROPERTY(bool disclosure MEMBER disclosure)

public:
    QString textLabel;
    QString detailTextLabel;
    /// Whether the row leads on: it then takes a press and shows a chevron.
    bool disclosure = false;

    friend bool operator==(const DetailCell&, const DetailCell&) = default;
};

/// A section of a detail screen: row strings of label, separator and value.
using DetailSection = QStringList;

/// A screen of facts: sections of row strings, each drawn as a label over its value. A row cannot be pressed unless
/// `leadsOn` says so. A subclass calls `setTableData` and, if its sections have titles, overrides
/// `titleForHeaderInSection`; its scene is DetailScene, which needs no delegate. Main thread.
///
/// A row string is split at every separator, and only the first two pieces are shown. A value that contains the
/// separator is therefore cut there; that is meant. What is copied or looked for is the whole value.
class DetailViewController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* rowMenu READ rowMenu CONSTANT)
    Q_PROPERTY(bool offersReport READ offersReport CONSTANT)

public:
    explicit DetailViewController(char16_t separator = u':');

    TableOutlet* tableView() { return &m_tableView; }
    MenuOutlet* rowMenu() { return &m_rowMenu; }
    const std::vector<DetailSection>& tableData() const { return m_tableData; }

    /// Offers to copy the row's value or all rows, and to look for the value everywhere.
    Q_INVOKABLE void presentMenu(int section, int row);
    /// Copies the row's whole value; nothing for a row without one.
    Q_INVOKABLE void copyValue(int section, int row);
    /// Copies every row of the screen, each as a line "label: value".
    Q_INVOKABLE void copyAll() const;
    /// Whether there is a service report of what the screen shows; `openReport` presents it.
    virtual bool offersReport() const { return false; }
    Q_INVOKABLE virtual void openReport() {}

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    /// Every section has a header. The title is taken by index; beyond the titles it is "", which gives an empty
    /// header.
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    /// Calls `openRow` for a row that leads on. Every tap ends with the row deselected.
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    /// Sets the sections and reloads the table.
    void setTableData(std::vector<DetailSection> sections);
    void setSectionTitles(QStringList titles) { m_sectionTitles = std::move(titles); }
    /// The value that the row shows; empty for a row that does not exist or has no value.
    QString valueAt(IndexPath indexPath) const;
    /// What the row tells, also behind the first separator of the value.
    QString wholeValueAt(IndexPath indexPath) const;
    virtual bool leadsOn(IndexPath /*indexPath*/) const { return false; }
    virtual void openRow(IndexPath /*indexPath*/) {}

    /// Serial number, machine type and model of a system or a console.
    DetailSection modelAndSerial(const MachineIdentity& machine) const;
    QString row(const QString& label, const QString& value) const;
    /// An absent value is written as "(null)".
    QString row(const QString& label, const std::optional<std::string>& value) const;

private:
    QString rowAt(IndexPath indexPath) const;
    QStringList piecesAt(IndexPath indexPath) const;

    QChar m_separator;
    TableOutlet m_tableView;
    MenuOutlet m_rowMenu;
    std::vector<DetailSection> m_tableData;
    QStringList m_sectionTitles;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"

namespace lodestar
{

/// A row of the gallery's table.
struct GalleryCell {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString state MEMBER state)
    Q_PROPERTY(lodestar::Role::State role MEMBER role)
    Q_PROPERTY(QString badge MEMBER badge)
    Q_PROPERTY(bool online MEMBER online)

public:
    QString name;
    QString state;
    Role::State role;
    QString badge;
    bool online = true;
};

/// Every widget of the kit in every state, for the pictures and the tests that drive them.
class GalleryController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::RefreshControl* refreshControl READ refreshControl CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* status READ status CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* nameField READ nameField CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* addressField READ addressField CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* userField READ userField CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* passwordField READ passwordField CONSTANT)
    Q_PROPERTY(lodestar::SwitchOutlet* flip READ flip CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* actions READ actions CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* grid READ grid CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* count READ count CONSTANT)

public:
    GalleryController();

    TableOutlet* tableView() { return &m_tableView; }
    RefreshControl* refreshControl() { return &m_refreshControl; }
    LabelOutlet* status() { return &m_status; }
    FieldOutlet* nameField() { return &m_nameField; }
    FieldOutlet* addressField() { return &m_addressField; }
    FieldOutlet* userField() { return &m_userField; }
    FieldOutlet* passwordField() { return &m_passwordField; }
    SwitchOutlet* flip() { return &m_flip; }
    MenuOutlet* alert() { return &m_alert; }
    MenuOutlet* actions() { return &m_actions; }
    MenuOutlet* grid() { return &m_grid; }
    LabelOutlet* count() { return &m_count; }

    int numberOfSections(TableKind) const override { return 2; }
    int numberOfRowsInSection(TableKind, int section) const override { return static_cast<int>(rows[section].size()); }
    std::optional<QString> titleForHeaderInSection(TableKind, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind, IndexPath indexPath) override;
    Q_INVOKABLE void swipeTapped(int section, int row, int button, bool leading);
    Q_INVOKABLE void cancel() { ++cancelled; }

    std::vector<GalleryCell> rows[2];
    std::vector<IndexPath> selected;
    std::vector<int> swiped; ///< indices of pressed row buttons; leading buttons count -1, -2 and so on
    std::vector<IndexPath> configured;
    int cancelled = 0;
    int appeared = 0;
    int disappeared = 0;

protected:
    void viewDidLoad() override;
    void viewDidAppear() override { ++appeared; }
    void viewDidDisappear() override { ++disappeared; }

private:
    TableOutlet m_tableView{*this, TableKind::Main};
    RefreshControl m_refreshControl;
    LabelOutlet m_status;
    FieldOutlet m_nameField;
    FieldOutlet m_addressField;
    FieldOutlet m_userField;
    FieldOutlet m_passwordField;
    SwitchOutlet m_flip;
    MenuOutlet m_alert;
    MenuOutlet m_actions;
    MenuOutlet m_grid;
    LabelOutlet m_count;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Error.h"

namespace lodestar
{

class CorvelListViewController;

/// The console editor: one form for adding and for editing, in a sheet over the list. It checks the fields, logs on,
/// fetches everything once and only then adds the console. Main thread.
///
/// It is told nothing by the list and finds it through notifications: "StatusWillShow" and "StatusShouldHide" move the
/// sheet, "CloseDeltaCorvel" closes it, and "CorvelAdded" comes in its place when there is no sheet any more. A closed
/// editor posts and shows nothing any more.
class DeltaCorvelViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::LabelOutlet* navigationBar READ navigationBar CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* nameField READ nameField CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* addressField READ addressField CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* usernameField READ usernameField CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* passwordField READ passwordField CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* statusLabel READ statusLabel CONSTANT)
    Q_PROPERTY(StatusKind statusKind READ statusKind NOTIFY statusKindChanged)
    Q_PROPERTY(bool busy READ isBusy NOTIFY statusKindChanged)
    Q_PROPERTY(double separatorLeft READ separatorLeft CONSTANT)
    Q_PROPERTY(double separatorRight READ separatorRight CONSTANT)
    Q_PROPERTY(double tableHeaderHeight READ tableHeaderHeight CONSTANT)

public:
    /// What the status line says, which decides how it is marked.
    enum class StatusKind { None, Message, Failure, Success };
    Q_ENUM(StatusKind)

    DeltaCorvelViewController();

    const CorvelRef& corvel() const { return m_corvel; }
    /// The record to edit; none (as made) to add one. Before the sheet is presented.
    void setCorvel(CorvelRef corvel) { m_corvel = std::move(corvel); }
    /// Keeps the list for as long as the editor is there.
    void setParentList(std::shared_ptr<CorvelListViewController> list) { m_parentList = std::move(list); }
    /// Whether this editor has inserted a record of its own.
    bool hasCreated() const { return m_hasCreated; }
    /// Whether it was opened without a record.
    bool creatingInstance() const { return m_creatingInstance; }

    LabelOutlet* navigationBar() { return &m_navigationBar; }
    FieldOutlet* nameField() { return &m_nameField; }
    FieldOutlet* addressField() { return &m_addressField; }
    FieldOutlet* usernameField() { return &m_usernameField; }
    FieldOutlet* passwordField() { return &m_passwordField; }
    LabelOutlet* statusLabel() { return &m_statusLabel; }
    StatusKind statusKind() const { return m_statusKind; }
    /// From a press of Save that went ahead until its outcome; Save does nothing meanwhile.
    bool isBusy() const { return m_statusKind == StatusKind::Message; }
    double separatorLeft() const { return 10; }
    double separatorRight() const { return 15; }
    /// Next to nothing: none at all would bring back a grouped table's gap on top.
    double tableHeaderHeight() const { return 0.01; }

    /// Takes the keyboard from the field. Always true.
    Q_INVOKABLE bool textFieldShouldReturn(lodestar::FieldOutlet* textField);
    /// Whether every field has text. No trimming, no look at the address.
    bool fieldsValidate() const;
    Q_INVOKABLE void hideKeyboardOnTouch();
    Q_INVOKABLE void saveCorvel();
    Q_INVOKABLE void cancel();
    void showStatusWithMessage(const QString& message);
    /// Also gives the fields back, two seconds later.
    void showStatusWithError(const QString& message);
    void showWithSuccess(const QString& message);

Q_SIGNALS:
    void statusKindChanged();

protected:
    void viewDidLoad() override;

private:
    enum class Reenable { No, Yes };

    void setFieldsEnabled(bool enabled);
    void showStatus(const QString& text, StatusKind kind);
    void hideStatusLater(Reenable fields);
    void insertRecordIfNeeded();
    void copyFieldsToRecord();
    void logOnAndFetch();
    void didFetch(const CorvelRef& corvel);
    void didFail(const Error& error);
    void close();
    /// False once the lock has taken the sheet away, which does not end the work: the list may show another one since,
    /// and what is posted would be taken for that one's.
    bool hasSheet() const;

    CorvelRef m_corvel;
    std::shared_ptr<CorvelListViewController> m_parentList;
    bool m_hasCreated = false;
    bool m_creatingInstance = false;
    bool m_closed = false;
    StatusKind m_statusKind = StatusKind::None;
    int m_statusSerial = 0;

    LabelOutlet m_navigationBar;
    FieldOutlet m_nameField;
    FieldOutlet m_addressField;
    FieldOutlet m_usernameField;
    FieldOutlet m_passwordField;
    LabelOutlet m_statusLabel;
};

} // namespace lodestar

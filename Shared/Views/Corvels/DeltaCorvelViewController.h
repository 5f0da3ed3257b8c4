// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Error.h"

namespace lodestar
{

/// The console editor: one form for adding and for editing, in a sheet over the list. It checks the fields, logs on,
/// fetches everything once, and only then adds the console. Main thread.
///
/// The editor talks to the list by notifications and gets none back: "StatusWillShow" and "StatusShouldHide" resize the
/// sheet, "CloseDeltaCorvel" closes it; when the sheet is gone already, "CorvelAdded" is sent in place of
/// "CloseDeltaCorvel". A closed editor sends and shows nothing.
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
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)
    Q_PROPERTY(double separatorLeft READ separatorLeft CONSTANT)
    Q_PROPERTY(double separatorRight READ separatorRight CONSTANT)

public:
    DeltaCorvelViewController();

    const CorvelRef& corvel() const { return m_corvel; }
    /// The record to edit; null, as at the start, to add one. To be set before the sheet is presented.
    void setCorvel(CorvelRef corvel) { m_corvel = std::move(corvel); }
    /// The editor keeps the list alive until it is closed.
    void setParentList(std::shared_ptr<ViewController> list) { m_parentList = std::move(list); }
    /// Whether this editor has inserted a record of its own.
    bool hasCreated() const { return m_hasCreated; }
    /// Whether the editor was opened without a record.
    bool creatingInstance() const { return m_creatingInstance; }

    LabelOutlet* navigationBar() { return &m_navigationBar; }
    FieldOutlet* nameField() { return &m_nameField; }
    FieldOutlet* addressField() { return &m_addressField; }
    FieldOutlet* usernameField() { return &m_usernameField; }
    FieldOutlet* passwordField() { return &m_passwordField; }
    LabelOutlet* statusLabel() { return &m_statusLabel; }
    /// From a press of Save that went ahead until its outcome; Save does nothing meanwhile.
    bool isBusy() const { return m_busy; }
    double separatorLeft() const { return 10; }
    double separatorRight() const { return 15; }

    /// Takes the keyboard focus from the field. Returns true always.
    Q_INVOKABLE bool textFieldShouldReturn(lodestar::FieldOutlet* textField);
    /// Whether every field has text. Texts are not trimmed, and the address is not checked.
    bool fieldsValidate() const;
    Q_INVOKABLE void hideKeyboardOnTouch();
    Q_INVOKABLE void saveCorvel();
    Q_INVOKABLE void cancel();
    void showStatusWithMessage(const QString& message);
    /// Shows the error, and enables the fields again two seconds later.
    void showStatusWithError(const QString& message);
    void showWithSuccess(const QString& message);

Q_SIGNALS:
    void busyChanged();

protected:
    void viewDidLoad() override;

private:
    enum class Reenable { No, Yes };

    void setFieldsEnabled(bool enabled);
    void showStatus(const QString& text, Role::State state);
    void hideStatusLater(Reenable fields);
    void insertRecordIfNeeded();
    void copyFieldsToRecord();
    void logOnAndFetch();
    void didFetch(const CorvelRef& corvel);
    void didFail(const Error& error);
    void close();
    /// False when the passcode lock has closed the sheet, which does not end the editor's work. The list may show
    /// another editor's sheet since; that sheet would then receive this editor's notifications.
    bool hasSheet() const;

    CorvelRef m_corvel;
    std::shared_ptr<ViewController> m_parentList;
    bool m_hasCreated = false;
    bool m_creatingInstance = false;
    bool m_closed = false;
    bool m_busy = false;
    int m_statusSerial = 0;

    LabelOutlet m_navigationBar;
    FieldOutlet m_nameField;
    FieldOutlet m_addressField;
    FieldOutlet m_usernameField;
    FieldOutlet m_passwordField;
    LabelOutlet m_statusLabel;
};

} // namespace lodestar

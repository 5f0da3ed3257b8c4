// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/KeychainWait.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Error.h"
#include "Platform/Result.h"

#include <optional>
#include <string>

namespace lodestar
{

/// The passcode sheet: sets a passcode, or changes it for a person who knows the old one. The sheet asks to be closed
/// with the notification "ClosePasswordCreationView". Main thread.
class PasswordCreationViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The storyboard makes it.")
    Q_PROPERTY(lodestar::LabelOutlet* navigationBar READ navigationBar CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* oldPassword READ oldPassword CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* updatePassword READ updatePassword CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* verifyPassword READ verifyPassword CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* note READ note CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(double separatorLeft READ separatorLeft CONSTANT)
    Q_PROPERTY(double separatorRight READ separatorRight CONSTANT)

public:
    /// Keeps the settings alive. Their alert says that the passcode is saved after the sheet has gone.
    void setParentSettings(std::shared_ptr<ViewController> settings, MenuOutlet& alert);

    LabelOutlet* navigationBar() { return &m_navigationBar; }
    FieldOutlet* oldPassword() { return &m_oldPassword; }
    FieldOutlet* updatePassword() { return &m_updatePassword; }
    FieldOutlet* verifyPassword() { return &m_verifyPassword; }
    /// The text below the fields: the rule for passcodes, or a note that the keychain is being waited for.
    LabelOutlet* note() { return &m_note; }
    MenuOutlet* alert() { return &m_alert; }
    double separatorLeft() const { return 10; }
    double separatorRight() const { return 15; }

    /// The row's height in points. Row 0 is the old passcode, rows 1 and 2 are the new one twice, row 3 is the note.
    Q_INVOKABLE int heightForRowAtIndexPath(int row) const;
    /// Whether the old passcode equals the stored one, if there is one, and the new one is not empty. The new passcode
    /// need meet no other rule.
    bool fieldsValidate(const std::string& stored) const;
    /// Saves the passcode. The fields are disabled while the keychain works, and keep their texts if it fails.
    Q_INVOKABLE void savePW();
    /// Closes the sheet. A save that is under way is undone.
    Q_INVOKABLE void cancel();
    /// Takes the focus from the field. Always true.
    Q_INVOKABLE bool textFieldShouldReturn(lodestar::FieldOutlet* textField);
    Q_INVOKABLE void hideKeyboardOnTouch();

protected:
    void viewDidLoad() override;
    void viewDidDisappear() override;

private:
    void saveOver(const std::string& stored, const std::optional<Error>& failure);
    void saveEnded(const std::string& stored, const Result<void>& written);
    void refuse(const QString& message);
    void setFieldsEnabled(bool enabled);
    void close();

    std::shared_ptr<ViewController> m_parentSettings;
    MenuOutlet* m_parentAlert = nullptr; ///< the settings' own
    bool m_closed = false;
    bool m_isSaving = false;

    LabelOutlet m_navigationBar;
    FieldOutlet m_oldPassword;
    FieldOutlet m_updatePassword;
    FieldOutlet m_verifyPassword;
    LabelOutlet m_note;
    KeychainWait m_keychainWait{m_note};
    MenuOutlet m_alert;
};

} // namespace lodestar

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

class SettingsViewController;

/// The passcode sheet: sets the passcode, or changes it for whoever knows the old one. It asks for its own closing with
/// the notification "ClosePasswordCreationView". Main thread.
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
    /// Keeps the settings, which show that the passcode is saved once the sheet has gone.
    void setParentSettings(std::shared_ptr<SettingsViewController> settings);

    LabelOutlet* navigationBar() { return &m_navigationBar; }
    FieldOutlet* oldPassword() { return &m_oldPassword; }
    FieldOutlet* updatePassword() { return &m_updatePassword; }
    FieldOutlet* verifyPassword() { return &m_verifyPassword; }
    /// Below the fields: what a passcode may be, or that the keychain is being waited for.
    LabelOutlet* note() { return &m_note; }
    MenuOutlet* alert() { return &m_alert; }
    double separatorLeft() const { return 10; }
    double separatorRight() const { return 15; }

    /// Points: row 0 is the old passcode, 1 and 2 the new one twice, 3 the note below them.
    Q_INVOKABLE int heightForRowAtIndexPath(int row) const;
    /// Whether the old passcode is the stored one, if there is one, and the new one is not empty. Nothing else is asked
    /// of it.
    bool fieldsValidate(const std::string& stored) const;
    /// The keychain may take its time: the fields are disabled meanwhile. When it fails they keep their texts.
    Q_INVOKABLE void savePW();
    /// Whatever a save under way has written is taken back.
    Q_INVOKABLE void cancel();
    /// Takes the keyboard from the field. Always true.
    Q_INVOKABLE bool textFieldShouldReturn(lodestar::FieldOutlet* textField);
    Q_INVOKABLE void hideKeyboardOnTouch();

protected:
    void viewDidLoad() override;
    void viewDidDisappear() override;

private:
    std::shared_ptr<PasswordCreationViewController> kept();
    void saveOver(const std::string& stored, const std::optional<Error>& failure);
    void saveEnded(const std::string& stored, const Result<void>& written);
    void refuse(const QString& message);
    void setFieldsEnabled(bool enabled);
    void close();

    std::shared_ptr<SettingsViewController> m_parentSettings;
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

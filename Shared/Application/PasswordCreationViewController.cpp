// SPDX-License-Identifier: Apache-2.0
#include "Application/PasswordCreationViewController.h"

#include "Application/Passcode.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr int oldPasswordRow = 0;
constexpr int trailingRow = 3;
constexpr int rowHeight = 44;
constexpr int trailingRowHeight = 30;

} // namespace

void PasswordCreationViewController::setParentSettings(std::shared_ptr<ViewController> settings, MenuOutlet& alert)
{
    m_parentSettings = std::move(settings);
    m_parentAlert = &alert;
}

void PasswordCreationViewController::viewDidLoad()
{
    Passcode::recomputeExists(Passcode::Prompt::Allowed);
    setTitle(tr("Set Password"));
    m_navigationBar.setText(title());
    m_keychainWait.setText(tr("Any characters, any length."));
    Passcode::whenExistsIsKnown([weak = weak_from_this()] {
        if (const auto self = std::static_pointer_cast<PasswordCreationViewController>(weak.lock())) {
            self->m_oldPassword.setHidden(!Passcode::exists());
        }
    });
}

int PasswordCreationViewController::heightForRowAtIndexPath(int row) const
{
    if (row == oldPasswordRow && !Passcode::exists()) {
        return 0;
    }
    return row == trailingRow ? trailingRowHeight : rowHeight;
}

bool PasswordCreationViewController::fieldsValidate(const std::string& stored) const
{
    if (Passcode::exists() && m_oldPassword.text().toStdString() != stored) {
        return false;
    }
    return !m_updatePassword.text().isEmpty() && !m_verifyPassword.text().isEmpty();
}

void PasswordCreationViewController::savePW()
{
    // The sheet may be closed already: while it slides away, it can still be pressed.
    if (m_closed || std::exchange(m_isSaving, true)) {
        return;
    }
    endEditing();
    setFieldsEnabled(false);
    m_keychainWait.begin();
    if (!Passcode::exists()) {
        saveOver({}, {});
        return;
    }
    Passcode::read(Passcode::Prompt::Allowed, [keep = self<PasswordCreationViewController>()](
                                                  const std::string& stored, const std::optional<Error>& failure) {
        if (!keep->m_closed) {
            keep->saveOver(stored, failure);
        }
    });
}

void PasswordCreationViewController::saveOver(const std::string& stored, const std::optional<Error>& failure)
{
    if (failure) {
        refuse(tr("%1. The passcode was not changed.").arg(Passcode::words(*failure)));
        return;
    }
    if (!fieldsValidate(stored) || m_updatePassword.text() != m_verifyPassword.text()) {
        for (FieldOutlet* field : {&m_oldPassword, &m_updatePassword, &m_verifyPassword}) {
            field->setText({});
        }
        refuse(tr("Please reenter password"));
        return;
    }
    Passcode::store(m_verifyPassword.text().toStdString(),
                    [keep = self<PasswordCreationViewController>(), stored](const Result<void>& written) {
                        keep->saveEnded(stored, written);
                    });
}

void PasswordCreationViewController::saveEnded(const std::string& stored, const Result<void>& written)
{
    if (m_closed) {
        // The person cancelled while the keychain was writing: put the old passcode back.
        if (written) {
            Passcode::store(stored, [](const Result<void>&) {});
        }
        return;
    }
    if (!written) {
        // Nothing counts as saved. A write that timed out may still be carried out: the next attempt then finds the new
        // passcode as the stored one.
        refuse(tr("%1. The passcode was not saved.").arg(Passcode::words(written.error())));
        return;
    }
    const auto settings = m_parentSettings;
    close();
    // An alert of the sheet would vanish with the sheet, so the settings show it.
    MenuOutlet* const shown = settings ? m_parentAlert : &m_alert;
    shown->present(tr("Password Saved"), {}, {{tr("Continue")}}, 0, {});
}

void PasswordCreationViewController::refuse(const QString& message)
{
    m_isSaving = false;
    m_keychainWait.end();
    setFieldsEnabled(true);
    m_alert.present(tr("Failed"), message, {{tr("OK")}}, 0, {});
}

void PasswordCreationViewController::cancel()
{
    close();
}

void PasswordCreationViewController::viewDidDisappear()
{
    // The passcode screen may replace the settings while the keychain still works for this sheet. The settings may be
    // the caller, so let go of them only after the call has returned.
    MainQueue::shared().async([settings = std::exchange(m_parentSettings, nullptr)] {});
}

void PasswordCreationViewController::close()
{
    // The sheet can still be pressed while it slides away.
    if (std::exchange(m_closed, true)) {
        return;
    }
    // The settings let go of their sheet, and may hold the last reference to this object.
    const auto keep = shared_from_this();
    m_parentSettings.reset();
    NotificationCenter::defaultCenter().postNotification("ClosePasswordCreationView");
}

bool PasswordCreationViewController::textFieldShouldReturn(FieldOutlet* textField)
{
    textField->resignFirstResponder();
    return true;
}

void PasswordCreationViewController::hideKeyboardOnTouch()
{
    endEditing();
}

void PasswordCreationViewController::setFieldsEnabled(bool enabled)
{
    for (FieldOutlet* field : {&m_oldPassword, &m_updatePassword, &m_verifyPassword}) {
        field->setEnabled(enabled);
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Application/PasswordCreationViewController.h"

#include "Application/Passcode.h"
#include "Application/SettingsViewController.h"
#include "Platform/NotificationCenter.h"

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

void PasswordCreationViewController::setParentSettings(std::shared_ptr<SettingsViewController> settings)
{
    m_parentSettings = std::move(settings);
}

void PasswordCreationViewController::viewDidLoad()
{
    Passcode::recomputeExists();
    setTitle(tr("Set Password"));
    m_navigationBar.setText(title());
    m_oldPassword.setHidden(!Passcode::exists());
}

int PasswordCreationViewController::heightForRowAtIndexPath(int row) const
{
    if (row == oldPasswordRow && !Passcode::exists()) {
        return 0;
    }
    return row == trailingRow ? trailingRowHeight : rowHeight;
}

bool PasswordCreationViewController::fieldsValidate() const
{
    if (Passcode::exists() && m_oldPassword.text().toStdString() != Passcode::stored()) {
        return false;
    }
    return !m_updatePassword.text().isEmpty() && !m_verifyPassword.text().isEmpty();
}

bool PasswordCreationViewController::saveIfValid()
{
    // A write that failed counts as nothing saved. Timed out, it may yet be carried out: then the next attempt finds
    // the new passcode in the place of the old one.
    return fieldsValidate() && m_updatePassword.text() == m_verifyPassword.text() &&
           Passcode::store(m_verifyPassword.text().toStdString());
}

void PasswordCreationViewController::savePW()
{
    // The sheet takes a moment to slide away.
    if (m_closed) {
        return;
    }
    endEditing();
    setFieldsEnabled(false);
    if (saveIfValid()) {
        const auto keep = shared_from_this();
        const auto settings = m_parentSettings;
        close();
        // The sheet's own alert would go with it.
        MenuOutlet* const shown = settings ? settings->alert() : &m_alert;
        shown->present(tr("Password Saved"), {}, {{tr("Continue")}}, 0, {});
        return;
    }
    for (FieldOutlet* field : {&m_oldPassword, &m_updatePassword, &m_verifyPassword}) {
        field->setText({});
    }
    setFieldsEnabled(true);
    m_alert.present(tr("Failed"), tr("Please reenter password"), {{tr("OK")}}, 0, {});
}

void PasswordCreationViewController::cancel()
{
    close();
}

void PasswordCreationViewController::close()
{
    // The sheet can still be pressed while it slides away.
    if (std::exchange(m_closed, true)) {
        return;
    }
    // The settings drop their sheet, and with it perhaps the last reference to this.
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

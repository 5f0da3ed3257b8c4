// SPDX-License-Identifier: Apache-2.0
#include "Views/Corvels/DeltaCorvelViewController.h"

#include "Feedback/VireoLogger.h"
#include "Fleet/Registry.h"
#include "Kit/Core/ErrorText.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"
#include "Views/Common/CellText.h"

#include <chrono>

namespace lodestar
{
namespace
{

constexpr auto fileName = "Shared/Views/Corvels/DeltaCorvelViewController";
constexpr std::chrono::seconds statusTime{2};

} // namespace

DeltaCorvelViewController::DeltaCorvelViewController()
{
    setTitle(tr("Add Corvel"));
}

void DeltaCorvelViewController::viewDidLoad()
{
    LODESTAR_LOG(fileName, "-[DeltaCorvelViewController viewDidLoad]", "DeltaCorvelViewController instantiation");
    if (m_corvel) {
        setTitle(tr("Edit Corvel"));
        m_nameField.setText(textOf(m_corvel->name()));
        m_addressField.setText(textOf(m_corvel->address()));
        m_usernameField.setText(textOf(m_corvel->username()));
        m_passwordField.setText(textOf(m_corvel->password()));
    } else {
        m_hasCreated = false;
        m_creatingInstance = true;
    }
    m_navigationBar.setText(title());
}

bool DeltaCorvelViewController::textFieldShouldReturn(FieldOutlet* textField)
{
    textField->resignFirstResponder();
    return true;
}

bool DeltaCorvelViewController::fieldsValidate() const
{
    return !m_nameField.text().isEmpty() && !m_addressField.text().isEmpty() && !m_usernameField.text().isEmpty() &&
           !m_passwordField.text().isEmpty();
}

void DeltaCorvelViewController::hideKeyboardOnTouch()
{
    endEditing();
}

void DeltaCorvelViewController::saveCorvel()
{
    // A second press during saving would add the console twice.
    if (isBusy() || m_closed) {
        return;
    }
    endEditing();
    setFieldsEnabled(false);
    showStatusWithMessage(tr("verifying..."));
    if (!fieldsValidate()) {
        showStatusWithError(tr("Please enter all fields"));
        return;
    }
    insertRecordIfNeeded();
    copyFieldsToRecord();
    // A registered console's own record matches too, so a registered console cannot be saved from here. That is meant.
    if (isAddressRegistered(*m_corvel)) {
        showStatusWithError(tr("Corvel has already been added"));
        return;
    }
    logOnAndFetch();
}

void DeltaCorvelViewController::insertRecordIfNeeded()
{
    // A second attempt after a failure uses the record of the first.
    if (!m_hasCreated && m_creatingInstance) {
        m_corvel = insertNewCorvel();
        m_corvel->setDemo(false);
        m_hasCreated = true;
    }
}

void DeltaCorvelViewController::copyFieldsToRecord()
{
    m_corvel->setName(m_nameField.text().toStdString());
    changeAddress(*m_corvel, m_addressField.text().toStdString());
    m_corvel->setUsername(m_usernameField.text().toStdString());
    m_corvel->setPassword(m_passwordField.text().toStdString());
}

void DeltaCorvelViewController::logOnAndFetch()
{
    const auto screen = self<DeltaCorvelViewController>();
    const CorvelRef corvel = m_corvel;
    fetchInventory(corvel, Urgency::Person)
        .thenOnMain([screen, corvel](const std::string&) { screen->didFetch(corvel); },
                    [screen](const Error& error) { screen->didFail(error); });
}

void DeltaCorvelViewController::didFetch(const CorvelRef& corvel)
{
    // The user cancelled during the fetch and the record was deleted; it must not return to the list.
    if (!corvel->isInserted()) {
        forgetSessionKeyOfUnregistered(*corvel);
        return;
    }
    if (m_closed) {
        return;
    }
    // The passcode lock closes the sheet without ending the fetch, so the same console may have been added by another
    // editor.
    if (isAddressRegistered(*m_corvel)) {
        deleteCorvel(corvel);
        m_corvel = nullptr;
        m_hasCreated = false;
        showStatusWithError(tr("Corvel has already been added"));
        return;
    }
    showStatusWithMessage(tr("gathering data..."));
    finishAdding(corvel);
    close();
}

void DeltaCorvelViewController::didFail(const Error& error)
{
    LODESTAR_LOG(fileName, "-[DeltaCorvelViewController saveCorvel:]", "Error: {} - > {}", description(error),
                 "saveCorvel:");
    showStatusWithError(errorText(error));
}

void DeltaCorvelViewController::cancel()
{
    // The sheet can be pressed while it slides away; by then its record may be a registered console, which must not be
    // deleted.
    if (m_closed) {
        return;
    }
    if (m_hasCreated && m_creatingInstance && m_corvel) {
        deleteCorvel(m_corvel);
    }
    close();
}

void DeltaCorvelViewController::close()
{
    m_closed = true;
    // The list releases its sheet, which may hold the last reference to this object.
    const auto screen = shared_from_this();
    NotificationCenter::defaultCenter().postNotification(hasSheet() ? "CloseDeltaCorvel" : "CorvelAdded");
    m_parentList.reset();
}

bool DeltaCorvelViewController::hasSheet() const
{
    if (m_parentList == nullptr) {
        return true;
    }
    const SemiModalPresentation* const sheet = m_parentList->semiModal();
    return sheet != nullptr && sheet->controller() == this;
}

void DeltaCorvelViewController::showStatusWithMessage(const QString& message)
{
    showStatus(message, Role::State::None);
    if (!m_closed && hasSheet()) {
        NotificationCenter::defaultCenter().postNotification("StatusWillShow");
    }
}

void DeltaCorvelViewController::showStatusWithError(const QString& message)
{
    showStatus(message, Role::State::Error);
    hideStatusLater(Reenable::Yes);
}

void DeltaCorvelViewController::showWithSuccess(const QString& message)
{
    showStatus(message, Role::State::Good);
    hideStatusLater(Reenable::No);
}

void DeltaCorvelViewController::showStatus(const QString& text, Role::State state)
{
    ++m_statusSerial;
    m_statusLabel.setText(text);
    m_statusLabel.setState(state);
    m_busy = state == Role::State::None;
    Q_EMIT busyChanged();
}

void DeltaCorvelViewController::hideStatusLater(Reenable fields)
{
    // Only the line is hidden; its text stays. Nothing happens if another status was shown or the sheet was closed by
    // then.
    const std::weak_ptr<ViewController> weak = weak_from_this();
    MainQueue::shared().asyncAfter(statusTime, [this, weak, fields, serial = m_statusSerial] {
        const auto screen = weak.lock();
        if (!screen || m_closed || !hasSheet() || serial != m_statusSerial) {
            return;
        }
        NotificationCenter::defaultCenter().postNotification("StatusShouldHide");
        if (fields == Reenable::Yes) {
            setFieldsEnabled(true);
        }
    });
}

void DeltaCorvelViewController::setFieldsEnabled(bool enabled)
{
    for (FieldOutlet* field : {&m_nameField, &m_addressField, &m_usernameField, &m_passwordField}) {
        field->setEnabled(enabled);
    }
}

} // namespace lodestar

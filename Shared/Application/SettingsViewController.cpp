// SPDX-License-Identifier: Apache-2.0
#include "Application/SettingsViewController.h"

#include "Application/IntroView.h"
#include "Application/Model/Setting.h"
#include "Application/Passcode.h"
#include "Application/PasswordCreationViewController.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/UserDefaults.h"
#include "Views/Common/Scenes.h"

#include <QCoreApplication>

#include <utility>

namespace lodestar
{
namespace
{

constexpr IndexPath changePasscodeRow{0, 1};
constexpr IndexPath introTourRow{1, 0};
constexpr IndexPath versionRow{1, 1};
constexpr IndexPath openSourceRow{1, 2};
constexpr IndexPath licenceRow{1, 3};

// The sheet's height below its bar, in points: with the row for the old passcode, and without it.
constexpr double sheetHeightWithOldPasscode = 164;
constexpr double sheetHeight = 119;

} // namespace

QString SettingsViewController::version() const
{
    return QCoreApplication::applicationVersion();
}

void SettingsViewController::viewDidLoad()
{
    Passcode::recomputeExists(Passcode::Prompt::No);
    setTitle(tr("Settings"));
    updateKeychainNote();
    whenPasscodeIsKnown([](SettingsViewController& self) { self.updateKeychainNote(); });
    m_passwordCellArrow.setImageName(QStringLiteral("chevron"));
    const bool required = UserDefaults::standard().boolForKey(Setting::requirePassword);
    m_passwordSwitch.setOn(required);
    setPasswordCellEnabled(required);
    m_closeObservation =
        NotificationCenter::defaultCenter().addObserver("ClosePasswordCreationView", [this] { hideModalView(); });
}

void SettingsViewController::viewDidAppear()
{
    // `pushWithoutTitle` emptied the title for the pushed screen's back button.
    setTitle(tr("Settings"));
}

void SettingsViewController::whenPasscodeIsKnown(const std::function<void(SettingsViewController&)>& function)
{
    Passcode::whenExistsIsKnown([weak = weak_from_this(), function] {
        if (const auto self = std::static_pointer_cast<SettingsViewController>(weak.lock())) {
            function(*self);
        }
    });
}

void SettingsViewController::updateKeychainNote()
{
    QString text = Passcode::lockOffWords();
    if (text.isEmpty() && Passcode::existsFailure()) {
        text = tr("%1.").arg(Passcode::words(*Passcode::existsFailure()));
    }
    m_keychainWait.setText(text);
}

void SettingsViewController::turnOffWithoutPasscode()
{
    if (!UserDefaults::standard().boolForKey(Setting::requirePassword)) {
        return;
    }
    Passcode::read(Passcode::Prompt::No,
                   [weak = weak_from_this()](const std::string& passcode, const std::optional<Error>& failure) {
                       // A locked keychain holds its passcode still: the passcode screen asks for it later and decides
                       // then.
                       if (!passcode.empty() || (failure && failure->code == Keychain::locked)) {
                           return;
                       }
                       UserDefaults::standard().setBool(false, Setting::requirePassword);
                       if (failure) {
                           Passcode::rememberLockOff(*failure);
                       }
                       if (const auto self = std::static_pointer_cast<SettingsViewController>(weak.lock())) {
                           self->m_passwordSwitch.setOn(false);
                           self->setPasswordCellEnabled(false);
                           self->updateKeychainNote();
                       }
                   });
}

void SettingsViewController::setPasswordCellEnabled(bool enabled)
{
    m_passwordCell.setEnabled(enabled);
    m_passwordCellLabel.setEnabled(enabled);
    m_passwordCellArrow.setHidden(!enabled);
}

void SettingsViewController::togglePassword()
{
    UserDefaults& defaults = UserDefaults::standard();
    defaults.setBool(m_passwordSwitch.isOn(), Setting::requirePassword);
    const bool required = defaults.boolForKey(Setting::requirePassword);
    setPasswordCellEnabled(required);
    if (!required) {
        return;
    }
    Passcode::forgetLockOff();
    updateKeychainNote();
    whenPasscodeIsKnown([](SettingsViewController& self) {
        if (self.m_passwordSwitch.isOn() && !Passcode::exists()) {
            self.presentPasscodeSheet();
        }
    });
}

void SettingsViewController::didSelectRowAtIndexPath(IndexPath indexPath)
{
    if (indexPath == changePasscodeRow && m_passwordCell.isEnabled()) {
        presentPasscodeSheet();
    } else if (indexPath == introTourRow) {
        showIntroTour();
    } else if (indexPath == versionRow) {
        pushWithoutTitle(Scenes::versionViewController);
    } else if (indexPath == openSourceRow) {
        pushWithoutTitle(Scenes::openSourceViewController);
    } else if (indexPath == licenceRow) {
        pushWithoutTitle(Scenes::OrnisLicenseViewController);
    }
}

void SettingsViewController::presentPasscodeSheet()
{
    const auto sheet = Storyboard::main().instantiate<PasswordCreationViewController>(Scenes::passwordCreation);
    if (!sheet || std::exchange(m_isOpeningSheet, true)) {
        return;
    }
    // Loading the sheet reads anew whether there is a passcode, which decides on the sheet's rows and height. The
    // answer may wait for a person to unlock the keychain.
    sheet->loadViewIfNeeded();
    m_keychainWait.begin();
    whenPasscodeIsKnown([sheet](SettingsViewController& self) {
        self.m_isOpeningSheet = false;
        self.m_keychainWait.end();
        self.updateKeychainNote();
        if (self.isInWindow() && self.semiModal() == nullptr && self.m_passwordSwitch.isOn()) {
            sheet->setParentSettings(self.shared_from_this(), self.m_alert);
            self.presentSemiViewController(sheet, {.pushParentBack = false, .height = self.restingSheetHeight()});
        }
    });
}

void SettingsViewController::showIntroTour()
{
    ViewController* const tabs = tabBarController();
    IntroView::showIntroViewInView(tabs != nullptr ? *tabs : *this, self<SettingsViewController>());
}

void SettingsViewController::pushWithoutTitle(Scene<> scene)
{
    // The title is emptied before the push: the pushed screen's bar reads the text of its back button only once, when
    // it is made.
    if (navigationController() != nullptr) {
        setTitle(QStringLiteral(""));
        openScene(*this, scene);
    }
}

double SettingsViewController::restingSheetHeight() const
{
    return Passcode::exists() ? sheetHeightWithOldPasscode : sheetHeight;
}

void SettingsViewController::hideModalView()
{
    dismissSemiModalView();
    turnOffWithoutPasscode();
}

} // namespace lodestar

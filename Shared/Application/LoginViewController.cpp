// SPDX-License-Identifier: Apache-2.0
#include "Application/LoginViewController.h"

#include "Application/FeedbackSupport.h"
#include "Application/KeptState.h"
#include "Application/Model/Setting.h"
#include "Application/Passcode.h"
#include "Fleet/Registry.h"
#include "Platform/UserDefaults.h"
#include "Views/Common/Scenes.h"

#include <cmath>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double spaceAtRest = 200;
constexpr double spaceOverKeyboard = 50;
constexpr double shortScreenHeight = 568;

} // namespace

LoginViewController::LoginViewController(RootSwitch showRoot) : m_showRoot(std::move(showRoot)) {}

void LoginViewController::viewDidLoad()
{
    m_isFirstLaunch = true;
    m_logoImageView.setImageName(QStringLiteral("app_icon"));
    m_passwordLabel.setText(tr("Passcode"));
    aestheticModifications();
}

void LoginViewController::viewDidAppear()
{
    m_hasPassedOn = false;
    UserDefaults& defaults = UserDefaults::standard();
    if (defaults.boolForKey(Setting::resetUnderWay)) {
        resetApplicationData();
        return;
    }
    // The keychain outlives the application's removal: a passcode that an earlier installation left there counts as
    // none at once. Emptying the keychain neither keeps the person waiting nor asks for the keychain's own password.
    if (!defaults.boolForKey(Setting::initialLoad)) {
        Passcode::discard();
        defaults.setBool(false, Setting::requirePassword);
    }
    // The keychain is asked only while a passcode is required, and the screen does not wait for the answer.
    if (defaults.boolForKey(Setting::requirePassword)) {
        askWhetherThereIsAPasscode();
    }
    if (!defaults.boolForKey(Setting::requirePassword)) {
        if (!m_hasPassedOn) {
            performShowMainView();
        }
        return;
    }
    if (m_isFirstLaunch) {
        firstAnimation();
    }
}

void LoginViewController::askWhetherThereIsAPasscode()
{
    readPasscode([](LoginViewController& self, const std::string& passcode, const std::optional<Error>& failure) {
        if (!passcode.empty()) {
            return;
        }
        UserDefaults::standard().setBool(false, Setting::requirePassword);
        if (failure) {
            Passcode::rememberLockOff(*failure);
        }
        self.performShowMainView();
    });
}

void LoginViewController::readPasscode(const PasscodeUse& use)
{
    m_keychainWait.begin();
    Passcode::read(Passcode::Prompt::Allowed,
                   [weak = weak_from_this(), use](const std::string& passcode, const std::optional<Error>& failure) {
                       const auto self = std::static_pointer_cast<LoginViewController>(weak.lock());
                       if (!self) {
                           return;
                       }
                       self->m_keychainWait.end();
                       // Another passcode screen or the main interface may have replaced this screen meanwhile.
                       if (self->isInWindow() && !self->m_hasPassedOn) {
                           use(*self, passcode, failure);
                       }
                   });
}

void LoginViewController::setFormHidden(bool hidden)
{
    for (ViewOutlet* view : std::initializer_list<ViewOutlet*>{&m_passwordLabel, &m_passwordTextField, &m_loginButton,
                                                               &m_resetPasswordButton}) {
        view->setHidden(hidden);
    }
}

void LoginViewController::aestheticModifications()
{
    setFormHidden(true);
}

double LoginViewController::openedLogoPosition() const
{
    return m_mainScreenHeight == shortScreenHeight ? m_viewHeight / 4 : m_viewHeight / 3;
}

void LoginViewController::setLogoYAlignment(double distance)
{
    m_logoYAlignment = distance;
    Q_EMIT logoYAlignmentChanged();
}

void LoginViewController::setSpaceToPassword(double distance)
{
    m_spaceToPassword = distance;
    Q_EMIT spaceToPasswordChanged();
}

void LoginViewController::firstAnimation()
{
    setLogoYAlignment(openedLogoPosition());
    setFormHidden(false);
    setSpaceToPassword(spaceAtRest);
    m_isFirstLaunch = false;
    Q_EMIT isFirstLaunchChanged();
}

void LoginViewController::viewDidLayoutSubviews(double viewHeight, double mainScreenHeight)
{
    m_viewHeight = viewHeight;
    m_mainScreenHeight = mainScreenHeight;
    setLogoYAlignment(m_isFirstLaunch ? viewHeight / 2 : openedLogoPosition());
}

void LoginViewController::keyboardDidChangeFrame(const QRectF& endFrame, double animationDuration)
{
    const Up up = endFrame.top() == m_mainScreenHeight ? Up::No : Up::Yes;
    shiftKeyboardDistance(static_cast<int>(endFrame.height()), up, animationDuration);
}

void LoginViewController::shiftKeyboardDistance(int /*distance*/, Up up, double animationDuration)
{
    m_keyboardUp = up == Up::Yes;
    m_shiftDuration = static_cast<int>(std::lround(animationDuration * 1000));
    Q_EMIT shiftDurationChanged();
    setSpaceToPassword(m_keyboardUp ? spaceOverKeyboard : spaceAtRest);
}

bool LoginViewController::textFieldShouldReturn(FieldOutlet* textField)
{
    textField->resignFirstResponder();
    return true;
}

void LoginViewController::returnPressed()
{
    if (m_keyboardUp) {
        textFieldShouldReturn(&m_passwordTextField);
    } else {
        performLogin();
    }
}

void LoginViewController::hideKeyboardOnTouch()
{
    endEditing();
}

void LoginViewController::performLogin()
{
    // The keychain has not answered the last attempt yet, and is not asked twice.
    if (std::exchange(m_isComparing, true)) {
        return;
    }
    readPasscode([text = m_passwordTextField.text().toStdString()](
                     LoginViewController& self, const std::string& passcode, const std::optional<Error>& /*failure*/) {
        self.m_isComparing = false;
        if (passcode == text) {
            self.performShowMainView();
            return;
        }
        self.m_passwordTextField.setText({});
        self.m_alert.present(tr("Login Failed"), tr("Incorrect Credentials"), {{tr("OK")}}, 0, {});
    });
}

void LoginViewController::resetPassword()
{
    m_alert.present(tr("Reset Application?"), tr("Resetting your password will clear all application data"),
                    {{tr("OK"), true}, {tr("Cancel")}}, 1, [this](int index) {
                        if (index == 0) {
                            resetApplicationData();
                        }
                    });
}

void LoginViewController::resetApplicationData()
{
    UserDefaults& defaults = UserDefaults::standard();
    defaults.setBool(true, Setting::resetUnderWay);
    defaults.synchronize();

    removeEveryDefault(KeptState::shared());
    // A keychain that refuses does not stop the reset: "requirePassword" is removed below, which ends the lock.
    Passcode::discard();
    deleteEveryCorvel();
    FeedbackSupport::forgetReports();
    // This also removes the note that a reset is under way, so nothing may be left to wipe afterwards.
    removeEveryDefault(defaults);
    performShowMainView();
}

void LoginViewController::performShowMainView()
{
    m_hasPassedOn = true;
    // The switch drops the window's reference to this screen.
    const auto keep = shared_from_this();
    m_showRoot(Storyboard::main().instantiateViewController(Scenes::mainView));
}

} // namespace lodestar

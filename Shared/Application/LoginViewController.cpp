// SPDX-License-Identifier: Apache-2.0
#include "Application/LoginViewController.h"

#include "Application/FeedbackSupport.h"
#include "Application/Passcode.h"
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/Storyboard.h"
#include "Platform/UserDefaults.h"
#include "Views/Common/Registry.h"

#include <cmath>
#include <tuple>

namespace lodestar
{
namespace
{

constexpr auto requirePassword = "requirePassword";
/// Set from the first step of a reset to its last, which takes it away with all the rest: a reset that the process did
/// not survive is finished before anything is shown.
constexpr auto resetUnderWay = "resetUnderWay";

constexpr double spaceAtRest = 200;
constexpr double spaceOverKeyboard = 50;
constexpr double shortScreenHeight = 568;

void deleteEveryRecord()
{
    RESTHandler& rest = RESTHandler::sharedInstance();
    // A console whose adding was cut short by the lock is in no list, but the next save would store it.
    for (const CorvelRef& corvel : rest.fetchCorvels()) {
        if (!isRegistered(corvel)) {
            deleteCorvel(corvel);
        }
    }
    for (std::size_t index = 0; index < rest.corvelList().size(); ++index) {
        deleteCorvel(rest.corvelList()[index]);
        saveIgnoringErrors();
    }
    rest.setCorvelList({});
    saveIgnoringErrors();
}

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
    UserDefaults& defaults = UserDefaults::standard();
    if (defaults.boolForKey(resetUnderWay)) {
        resetApplicationData();
        return;
    }
    // The keychain outlives the application's removal.
    if (!defaults.boolForKey("initialLoad")) {
        std::ignore = Passcode::store({});
    }
    // Asked only when it matters: a slow keychain must not delay every start.
    if (defaults.boolForKey(requirePassword) && Passcode::stored().empty()) {
        defaults.setBool(false, requirePassword);
    }
    if (!defaults.boolForKey(requirePassword)) {
        performShowMainView();
        return;
    }
    if (m_isFirstLaunch) {
        firstAnimation();
    }
}

void LoginViewController::aestheticModifications()
{
    for (ViewOutlet* view : std::initializer_list<ViewOutlet*>{&m_passwordLabel, &m_passwordTextField, &m_loginButton,
                                                               &m_resetPasswordButton}) {
        view->setHidden(true);
    }
}

double LoginViewController::openedLogoPosition() const
{
    return m_mainScreenHeight == shortScreenHeight ? m_viewHeight / 4 : m_viewHeight / 3;
}

void LoginViewController::firstAnimation()
{
    m_logoYAlignment.setConstant(openedLogoPosition());
    for (ViewOutlet* view : std::initializer_list<ViewOutlet*>{&m_passwordLabel, &m_passwordTextField, &m_loginButton,
                                                               &m_resetPasswordButton}) {
        view->setHidden(false);
    }
    m_spaceToPassword.setConstant(spaceAtRest);
    m_isFirstLaunch = false;
    Q_EMIT isFirstLaunchChanged();
}

void LoginViewController::viewDidLayoutSubviews(double viewHeight, double mainScreenHeight)
{
    m_viewHeight = viewHeight;
    m_mainScreenHeight = mainScreenHeight;
    m_logoYAlignment.setConstant(m_isFirstLaunch ? viewHeight / 2 : openedLogoPosition());
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
    m_spaceToPassword.setConstant(m_keyboardUp ? spaceOverKeyboard : spaceAtRest);
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
    if (Passcode::stored() == m_passwordTextField.text().toStdString()) {
        performShowMainView();
        return;
    }
    m_passwordTextField.setText({});
    m_alert.present(tr("Login Failed"), tr("Incorrect Credentials"), {{tr("OK")}}, 0, {});
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
    defaults.setBool(true, resetUnderWay);
    defaults.synchronize();

    // A keychain that refuses does not stop the rest: "requirePassword" goes below, and with it the lock.
    std::ignore = Passcode::store({});
    deleteEveryRecord();
    FeedbackSupport::forgetReports();
    for (const std::string& key : defaults.allKeys()) {
        defaults.removeObjectForKey(key);
    }
    defaults.synchronize();
    performShowMainView();
}

void LoginViewController::performShowMainView()
{
    // The switch lets go of this screen.
    const auto keep = shared_from_this();
    m_showRoot(Storyboard::main().instantiateViewController("mainView"));
}

} // namespace lodestar

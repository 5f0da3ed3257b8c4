// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/KeychainWait.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Error.h"

#include <QRectF>

#include <functional>
#include <optional>
#include <string>

namespace lodestar
{

/// The passcode screen, which stands in front of everything: it asks for the passcode, or passes on to the main
/// interface at once when no passcode is required. A person who forgot the passcode can only wipe everything. Main
/// thread.
class LoginViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The storyboard makes it.")
    Q_PROPERTY(lodestar::ImageOutlet* logoImageView READ logoImageView CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* passwordLabel READ passwordLabel CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* passwordTextField READ passwordTextField CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* loginButton READ loginButton CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* resetPasswordButton READ resetPasswordButton CONSTANT)
    Q_PROPERTY(double logoYAlignment READ logoYAlignment NOTIFY logoYAlignmentChanged)
    Q_PROPERTY(double spaceToPassword READ spaceToPassword NOTIFY spaceToPasswordChanged)
    Q_PROPERTY(lodestar::LabelOutlet* keychainNote READ keychainNote CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(bool isFirstLaunch READ isFirstLaunch NOTIFY isFirstLaunchChanged)
    Q_PROPERTY(int openingDelay READ openingDelay CONSTANT)
    Q_PROPERTY(int openingDuration READ openingDuration CONSTANT)
    Q_PROPERTY(int shiftDuration READ shiftDuration NOTIFY shiftDurationChanged)

public:
    /// Puts the given controller in the place of the window's screen; the storyboard's host sets this.
    using RootSwitch = std::function<void(std::shared_ptr<ViewController>)>;
    enum class Up { No, Yes };

    explicit LoginViewController(RootSwitch showRoot);

    ImageOutlet* logoImageView() { return &m_logoImageView; }
    LabelOutlet* passwordLabel() { return &m_passwordLabel; }
    FieldOutlet* passwordTextField() { return &m_passwordTextField; }
    ViewOutlet* loginButton() { return &m_loginButton; }
    ViewOutlet* resetPasswordButton() { return &m_resetPasswordButton; }
    /// The distance of the logo's centre from the top, in points.
    double logoYAlignment() const { return m_logoYAlignment; }
    /// The distance between the logo and the field, in points, on a screen that is tall enough.
    double spaceToPassword() const { return m_spaceToPassword; }
    /// Says that the keychain is being waited for; hidden before the wait becomes noticeable, and while nothing is
    /// waited for.
    LabelOutlet* keychainNote() { return &m_keychainNote; }
    MenuOutlet* alert() { return &m_alert; }
    /// True until the opening animation begins.
    bool isFirstLaunch() const { return m_isFirstLaunch; }
    /// Milliseconds: the opening animation's delay and length, and the length of the last move for a keyboard.
    int openingDelay() const { return 100; }
    int openingDuration() const { return 1000; }
    int shiftDuration() const { return m_shiftDuration; }

    /// The heights, in points, of the scene and of the main screen, which is the window. Called whenever either
    /// changes.
    Q_INVOKABLE void viewDidLayoutSubviews(double viewHeight, double mainScreenHeight);

    /// Compares the field's present text with the stored passcode, character by character. Attempts are not limited,
    /// but none begins while the keychain still owes the answer to another.
    Q_INVOKABLE void performLogin();
    /// Asks the person, then wipes.
    Q_INVOKABLE void resetPassword();
    /// Removes passcode, consoles, session keys and settings, and shows the main interface as on the first day.
    void resetApplicationData();
    void aestheticModifications();
    void firstAnimation();
    /// `endFrame` is where the keyboard stops, on the main screen; `animationDuration` is how many seconds it moves.
    Q_INVOKABLE void keyboardDidChangeFrame(const QRectF& endFrame, double animationDuration);
    /// The distance is not used. This is meant: the field moves to the same place for every keyboard.
    void shiftKeyboardDistance(int distance, Up up, double animationDuration);
    /// Takes the focus from the field. Always true.
    bool textFieldShouldReturn(FieldOutlet* textField);
    /// The return key: dismisses an on-screen keyboard; on a physical keyboard it logs in.
    Q_INVOKABLE void returnPressed();
    Q_INVOKABLE void hideKeyboardOnTouch();

    /// Follows the segue "showMainView": replaces this screen by a new main interface.
    void performShowMainView();

Q_SIGNALS:
    void logoYAlignmentChanged();
    void spaceToPasswordChanged();
    void isFirstLaunchChanged();
    void shiftDurationChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    using PasscodeUse =
        std::function<void(LoginViewController&, const std::string& passcode, const std::optional<Error>& failure)>;

    double openedLogoPosition() const;
    void setLogoYAlignment(double distance);
    void setSpaceToPassword(double distance);
    void setFormHidden(bool hidden);
    void askWhetherThereIsAPasscode();
    /// The function is not called if the screen is gone, or no longer shown, when the answer comes.
    void readPasscode(const PasscodeUse& use);

    RootSwitch m_showRoot;
    bool m_isFirstLaunch = true;
    bool m_keyboardUp = false;
    bool m_hasPassedOn = false;
    bool m_isComparing = false;
    int m_shiftDuration = 0;
    double m_viewHeight = 0;
    double m_mainScreenHeight = 0;
    double m_logoYAlignment = 0;
    double m_spaceToPassword = 0;

    ImageOutlet m_logoImageView;
    LabelOutlet m_passwordLabel;
    FieldOutlet m_passwordTextField;
    ViewOutlet m_loginButton;
    ViewOutlet m_resetPasswordButton;
    LabelOutlet m_keychainNote;
    KeychainWait m_keychainWait{m_keychainNote};
    MenuOutlet m_alert;
};

} // namespace lodestar

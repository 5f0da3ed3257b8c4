// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/ControlOutlets.h"
#include "Application/KeychainWait.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"
#include "Platform/Error.h"

#include <QRectF>

#include <functional>
#include <optional>
#include <string>

namespace lodestar
{

/// The passcode screen, which stands in front of everything: it asks for the passcode, or passes straight on to the
/// main interface when none is required. A forgotten passcode is answered by wiping everything. Main thread.
class LoginViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The storyboard makes it.")
    Q_PROPERTY(lodestar::ImageOutlet* logoImageView READ logoImageView CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* passwordLabel READ passwordLabel CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* passwordTextField READ passwordTextField CONSTANT)
    Q_PROPERTY(lodestar::ControlOutlet* loginButton READ loginButton CONSTANT)
    Q_PROPERTY(lodestar::ControlOutlet* resetPasswordButton READ resetPasswordButton CONSTANT)
    Q_PROPERTY(lodestar::LayoutConstraint* logoYAlignment READ logoYAlignment CONSTANT)
    Q_PROPERTY(lodestar::LayoutConstraint* spaceToPassword READ spaceToPassword CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* keychainNote READ keychainNote CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(bool isFirstLaunch READ isFirstLaunch NOTIFY isFirstLaunchChanged)
    Q_PROPERTY(int openingDelay READ openingDelay CONSTANT)
    Q_PROPERTY(int openingDuration READ openingDuration CONSTANT)
    Q_PROPERTY(int shiftDuration READ shiftDuration NOTIFY shiftDurationChanged)

public:
    /// Replaces the window's screen by the one given; the storyboard's host sets it.
    using RootSwitch = std::function<void(std::shared_ptr<ViewController>)>;
    enum class Up { No, Yes };

    explicit LoginViewController(RootSwitch showRoot);

    ImageOutlet* logoImageView() { return &m_logoImageView; }
    LabelOutlet* passwordLabel() { return &m_passwordLabel; }
    FieldOutlet* passwordTextField() { return &m_passwordTextField; }
    ControlOutlet* loginButton() { return &m_loginButton; }
    ControlOutlet* resetPasswordButton() { return &m_resetPasswordButton; }
    /// Of the logo's centre, from the top.
    LayoutConstraint* logoYAlignment() { return &m_logoYAlignment; }
    /// Between the logo and the field, where the screen is tall enough.
    LayoutConstraint* spaceToPassword() { return &m_spaceToPassword; }
    /// That the keychain is being waited for; hidden while it is not, or not for long.
    LabelOutlet* keychainNote() { return &m_keychainNote; }
    MenuOutlet* alert() { return &m_alert; }
    /// Until the opening animation is under way.
    bool isFirstLaunch() const { return m_isFirstLaunch; }
    /// Milliseconds of the opening animation, and of the last move that the keyboard asked for.
    int openingDelay() const { return 100; }
    int openingDuration() const { return 1000; }
    int shiftDuration() const { return m_shiftDuration; }

    /// The scene's height and the main screen's, which is the window's, in points; whenever either changes.
    Q_INVOKABLE void viewDidLayoutSubviews(double viewHeight, double mainScreenHeight);

    /// Compares the field, as it is now, with the stored passcode, character by character. As often as one likes, but
    /// not before the keychain has answered.
    Q_INVOKABLE void performLogin();
    /// Asks before it wipes.
    Q_INVOKABLE void resetPassword();
    /// Passcode, consoles, session keys and settings go; the main interface comes up as on the first day.
    void resetApplicationData();
    void aestheticModifications();
    void firstAnimation();
    /// The keyboard's frame when its motion, of that many seconds, ends, on the main screen.
    Q_INVOKABLE void keyboardDidChangeFrame(const QRectF& endFrame, double animationDuration);
    /// The distance is not used. That is meant: the field moves to the same place over any keyboard.
    void shiftKeyboardDistance(int distance, Up up, double animationDuration);
    /// Takes the keyboard from the field. Always true.
    bool textFieldShouldReturn(FieldOutlet* textField);
    /// The return key: takes an on-screen keyboard away; on a keyboard that lies on the desk it logs in.
    Q_INVOKABLE void returnPressed();
    Q_INVOKABLE void hideKeyboardOnTouch();

    /// Follows the segue "showMainView": builds a new main interface in this screen's place.
    void performShowMainView();

Q_SIGNALS:
    void isFirstLaunchChanged();
    void shiftDurationChanged();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    using PasscodeUse =
        std::function<void(LoginViewController&, const std::string& passcode, const std::optional<Error>& failure)>;

    double openedLogoPosition() const;
    void askWhetherThereIsAPasscode();
    /// The function is not called when the screen has gone before the answer comes.
    void readPasscode(const PasscodeUse& use);

    RootSwitch m_showRoot;
    bool m_isFirstLaunch = true;
    bool m_keyboardUp = false;
    bool m_hasPassedOn = false;
    bool m_isComparing = false;
    int m_shiftDuration = 0;
    double m_viewHeight = 0;
    double m_mainScreenHeight = 0;

    ImageOutlet m_logoImageView;
    LabelOutlet m_passwordLabel;
    FieldOutlet m_passwordTextField;
    ControlOutlet m_loginButton;
    ControlOutlet m_resetPasswordButton;
    LayoutConstraint m_logoYAlignment;
    LayoutConstraint m_spaceToPassword;
    LabelOutlet m_keychainNote;
    KeychainWait m_keychainWait{m_keychainNote};
    MenuOutlet m_alert;
};

} // namespace lodestar

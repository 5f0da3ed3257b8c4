// SPDX-License-Identifier: Apache-2.0
#include "Application/Passcode.h"
#include "Application/PasswordCreationViewController.h"
#include "Application/SettingsViewController.h"
#include "Kit/Core/NavigationController.h"
#include "Tests/Application/LockFixture.h"

namespace lodestar::lock
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

class PasscodeTest : public LockTest
{
protected:
    SettingsViewController& showSettings()
    {
        settings = Storyboard::main().instantiate<SettingsViewController>(Scenes::settingsViewController);
        stack = makeController<NavigationController>(makeController<ViewController>());
        stack->beginAppearance();
        stack->pushViewController(settings, Animated::No);
        return *settings;
    }
    PasswordCreationViewController* sheet() const
    {
        return settings->semiModal() == nullptr
                   ? nullptr
                   : qobject_cast<PasswordCreationViewController*>(settings->semiModal()->controller());
    }
    void flip(bool on) const
    {
        settings->passwordSwitch()->setOn(on);
        settings->togglePassword();
    }
    void save(const QString& oldText, const QString& newText, const QString& verification) const
    {
        sheet()->oldPassword()->setText(oldText);
        sheet()->updatePassword()->setText(newText);
        sheet()->verifyPassword()->setText(verification);
        sheet()->savePW();
    }
    std::shared_ptr<SettingsViewController> settings;
    std::shared_ptr<NavigationController> stack;
};

TEST_F(PasscodeTest, OnlyTheVeryTextOpens)
{
    require();
    passcode() = "Caf\u00E9 9";
    LoginViewController& screen = showLogin();
    EXPECT_FALSE(screen.passwordTextField()->isHidden());
    for (const char* wrong : {"", "caf\u00E9 9", "Caf\u00E9 9 ", " Caf\u00E9 9", "Cafe\u0301 9", "Caf\u00E9 90"}) {
        logInWith(wrong);
        ASSERT_FALSE(isUnlocked()) << wrong;
        EXPECT_EQ(screen.passwordTextField()->text(), "");
        EXPECT_TRUE(screen.alert()->isPresented());
        EXPECT_EQ(screen.alert()->title(), "Login Failed");
        EXPECT_EQ(screen.alert()->message(), "Incorrect Credentials");
        screen.alert()->choose(0);
    }
    logInWith("Caf\u00E9 9");
    EXPECT_TRUE(isUnlocked());
    EXPECT_THAT(logged(), Not(HasSubstr("Caf")));
}

TEST_F(PasscodeTest, AKeychainThatCannotBeReadSwitchesTheLockOffAndSettingsSayWhy)
{
    const std::pair<int, const char*> reasons[] = {{Keychain::locked, "keychain was locked"},
                                                   {Keychain::absent, "no keychain was running"},
                                                   {Keychain::timedOut, "did not answer"},
                                                   {7, "could not be read"}};
    passcode() = "secret";
    for (const auto& [failure, words] : reasons) {
        SCOPED_TRACE(words);
        require();
        keychain->readFailure = failure;
        showLogin();
        EXPECT_TRUE(isUnlocked());
        EXPECT_FALSE(isRequired());
        EXPECT_THAT(logged(), HasSubstr("The passcode cannot be read: Keychain " + std::to_string(failure)));
        keychain->readFailure = 0;
        reopenKeptState();
        EXPECT_THAT(showSettings().keychainNote()->text().toStdString(), HasSubstr(words));
        flip(true);
        EXPECT_EQ(sheet(), nullptr) << "the passcode is still there";
        EXPECT_TRUE(settings->keychainNote()->isHidden());
        EXPECT_TRUE(isRequired());
    }
}

TEST_F(PasscodeTest, APasscodeOfAnEarlierInstallationIsDiscardedAndNobodyIsAskedForIt)
{
    // The first start, over a locked keychain.
    passcode() = "left over";
    UserDefaults::standard().setBool(true, "requirePassword");
    keychain->isLocked = true;
    keychain->isHolding = true;
    showLogin();
    EXPECT_TRUE(isUnlocked()) << "before the keychain has answered";
    EXPECT_FALSE(isRequired());
    keychain->release();
    EXPECT_TRUE(keychain->isLocked) << "nobody was asked to unlock it";

    UserDefaults::standard().setBool(true, "initialLoad");
    reopenKeptState();
    showSettings();
    EXPECT_TRUE(keychain->isLocked);
    EXPECT_EQ(settings->keychainNote()->text(), "The system's keychain is locked.");
    flip(true);
    EXPECT_FALSE(keychain->isLocked) << "now it matters";
    ASSERT_NE(sheet(), nullptr);
    EXPECT_TRUE(sheet()->oldPassword()->isHidden());
    EXPECT_EQ(passcode(), "");
}

TEST_F(PasscodeTest, WhileThePersonIsAskedTheScreensWait)
{
    passcode() = "p";
    require();
    keychain->isHolding = true;
    LoginViewController& screen = showLogin();
    EXPECT_FALSE(isUnlocked());
    EXPECT_FALSE(screen.passwordTextField()->isHidden());
    logInWith("p");
    screen.performLogin();
    EXPECT_FALSE(isUnlocked()) << "pending is not unreadable";
    keychain->release();
    EXPECT_TRUE(isUnlocked());
    EXPECT_TRUE(isRequired());

    // The prompt takes the keyboard: the screen is made anew, and shares the answer, which is none.
    keychain->isHolding = true;
    showLogin();
    const auto replaced = root;
    showLogin();
    replaced->endAppearance();
    keychain->readFailure = Keychain::locked;
    keychain->release();
    EXPECT_TRUE(isUnlocked());
    EXPECT_FALSE(isRequired());

    keychain->readFailure = 0;
    showSettings();
    passcode().clear();
    Passcode::recomputeExists(Passcode::Prompt::No);
    keychain->isHolding = true;
    flip(true);
    EXPECT_EQ(sheet(), nullptr) << "its rows are not known yet";
    keychain->release();
    ASSERT_NE(sheet(), nullptr);
    keychain->isHolding = true;
    save({}, "late", "late");
    EXPECT_FALSE(sheet()->updatePassword()->isEnabled());
    sheet()->cancel();
    keychain->release();
    EXPECT_EQ(passcode(), "") << "cancelled";
    EXPECT_FALSE(isRequired());
}

TEST_F(PasscodeTest, TheSheetRefusesEveryWrongTextAlikeAndBlamesNoneForTheKeychain)
{
    require(false);
    showSettings();
    flip(true);
    keychain->writeFailure = Keychain::locked;
    save({}, "new", "new");
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(sheet()->alert()->title(), "Failed");
    EXPECT_EQ(sheet()->alert()->message(), "The system's keychain is locked. The passcode was not saved.");
    EXPECT_TRUE(sheet()->updatePassword()->isEnabled());
    EXPECT_EQ(sheet()->verifyPassword()->text(), "new") << "to be saved again";
    EXPECT_FALSE(settings->alert()->isPresented());
    EXPECT_THAT(logged(), HasSubstr("The passcode cannot be written: "));
    keychain->writeFailure = 0;
    sheet()->savePW();
    EXPECT_EQ(passcode(), "new");
    EXPECT_EQ(settings->alert()->title(), "Password Saved");

    settings->didSelectRowAtIndexPath({0, 1});
    ASSERT_NE(sheet(), nullptr);
    const QString texts[][3] = {{"wrong", "newer", "newer"}, {"", "newer", "newer"}, {"new", "", ""},
                                {"new", "newer", ""},        {"new", "", "newer"},   {"new", "newer", "Newer"}};
    for (const auto& [oldText, newText, verification] : texts) {
        save(oldText, newText, verification);
        ASSERT_NE(sheet(), nullptr);
        EXPECT_EQ(sheet()->alert()->title(), "Failed");
        EXPECT_EQ(sheet()->alert()->message(), "Please reenter password");
        EXPECT_EQ(sheet()->updatePassword()->text() + sheet()->verifyPassword()->text(), "");
        sheet()->alert()->choose(0);
    }
    keychain->readFailure = Keychain::absent;
    save("new", "newer", "newer");
    EXPECT_EQ(sheet()->alert()->message(), "No keychain is running on this system. The passcode was not changed.");
    EXPECT_EQ(passcode(), "new");
    keychain->readFailure = 0;
    sheet()->savePW();
    EXPECT_EQ(passcode(), "newer");
}

TEST_F(PasscodeTest, TheSwitchCannotStayOnWithoutAPasscodeWhichSurvivesTheSwitch)
{
    require(false);
    showSettings();
    settings->didSelectRowAtIndexPath({0, 1});
    EXPECT_EQ(sheet(), nullptr);
    flip(true);
    ASSERT_NE(sheet(), nullptr);
    EXPECT_TRUE(isRequired());
    sheet()->cancel();
    EXPECT_FALSE(isRequired());
    EXPECT_FALSE(settings->passwordCell()->isEnabled());

    flip(true);
    save({}, "first", "first");
    flip(false);
    EXPECT_FALSE(isRequired());
    EXPECT_EQ(passcode(), "first");
    // Nothing has loaded since the passcode was saved.
    flip(true);
    ASSERT_NE(sheet(), nullptr);
    EXPECT_FALSE(sheet()->oldPassword()->isHidden());
    sheet()->cancel();
    flip(false);
    flip(true);
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_TRUE(isRequired());

    const char* const titles[] = {"Release Notes", "Open Source Licenses", "Ornis License"};
    for (int row = 1; row <= 3; ++row) {
        settings->didSelectRowAtIndexPath({1, row});
        EXPECT_EQ(stack->topViewController()->title(), titles[row - 1]);
        EXPECT_EQ(stack->topViewController()->backButtonTitle(), "") << "the back button carries no text";
        stack->pop();
        EXPECT_EQ(settings->title(), "Settings");
    }
    passcode().clear();
    stack->pop();
    EXPECT_FALSE(isRequired());
}

} // namespace
} // namespace lodestar::lock

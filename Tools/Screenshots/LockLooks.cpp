// SPDX-License-Identifier: Apache-2.0
#include "Application/LoginViewController.h"
#include "Application/Passcode.h"
#include "Application/PasswordCreationViewController.h"
#include "Application/SettingsViewController.h"
#include "Kit/Core/NavigationController.h"
#include "Platform/UserDefaults.h"
#include "Tests/Support/StoredPassword.h"
#include "Tools/Screenshots/Looks.h"
#include "Views/Common/Scenes.h"

#include <tuple>

namespace lodestar::scenes
{
namespace
{

const QString passcode = QStringLiteral("evening star");

void setLock(const QString& stored, bool required)
{
    std::ignore = test::writePassword(stored.toStdString());
    UserDefaults::standard().setBool(required, "requirePassword");
}

LoginViewController& showLock(SceneStage& stage)
{
    setLock(passcode, true);
    const auto login = Storyboard::main().instantiate<LoginViewController>(Scenes::loginViewController);
    stage.window().setProperty("controller", QVariant::fromValue<ViewController*>(login.get()));
    stage.settle(1300);
    return *login;
}

SettingsViewController& showSettings(SceneStage& stage, const QString& stored, bool required)
{
    setLock(stored, required);
    stage.list().openSettings();
    stage.settle();
    return *qobject_cast<SettingsViewController*>(stage.list().navigationController()->topViewController());
}

PasswordCreationViewController& showSheet(SceneStage& stage, bool change)
{
    SettingsViewController& settings = showSettings(stage, change ? passcode : QString(), change);
    if (change) {
        settings.didSelectRowAtIndexPath({0, 1});
    } else {
        settings.passwordSwitch()->setOn(true);
        settings.togglePassword();
    }
    auto& sheet = *qobject_cast<PasswordCreationViewController*>(settings.semiModal()->controller());
    sheet.oldPassword()->setText(change ? QStringLiteral("orion!") : QString());
    sheet.updatePassword()->setText(QStringLiteral("polaris!"));
    sheet.verifyPassword()->setText(QStringLiteral("pol"));
    return sheet;
}

std::vector<Look> passcodeLooks()
{
    return {
        {"passcode", fleet(), [](SceneStage& stage) { showLock(stage).passwordTextField()->setText("star"); }, true},
        {"passcode-keyboard", fleet(),
         [](SceneStage& stage) {
             LoginViewController& lock = showLock(stage);
             lock.passwordTextField()->setText("star");
             lock.keyboardDidChangeFrame(QRectF(0, stage.window().height() - 260, stage.window().width(), 260), 0.25);
         }},
        {"passcode-alert", fleet(),
         [](SceneStage& stage) {
             LoginViewController& lock = showLock(stage);
             lock.passwordTextField()->setText("star");
             lock.performLogin();
         },
         true},
        {"passcode-reset-alert", fleet(), [](SceneStage& stage) { showLock(stage).resetPassword(); }, true},
    };
}

} // namespace

std::vector<Look> lockLooks()
{
    std::vector<Look> looks = passcodeLooks();
    looks.insert(looks.end(),
                 {
                     {"settings-on", fleet(), [](SceneStage& stage) { showSettings(stage, passcode, true); }, true},
                     {"settings-off", fleet(), [](SceneStage& stage) { showSettings(stage, {}, false); }},
                     {"settings-keychain", fleet(),
                      [](SceneStage& stage) {
                          Passcode::rememberLockOff({"Keychain", Keychain::locked, {}, {}, nullptr});
                          showSettings(stage, {}, false);
                          Passcode::forgetLockOff();
                      }},
                     {"settings-passcode-new", fleet(), [](SceneStage& stage) { showSheet(stage, false); }},
                     {"settings-passcode", fleet(), [](SceneStage& stage) { showSheet(stage, true); }, true},
                     {"settings-passcode-failed", fleet(),
                      [](SceneStage& stage) {
                          PasswordCreationViewController& sheet = showSheet(stage, true);
                          stage.settle();
                          sheet.savePW();
                      },
                      true},
                     {"settings-passcode-saved", fleet(),
                      [](SceneStage& stage) {
                          PasswordCreationViewController& sheet = showSheet(stage, false);
                          stage.settle();
                          sheet.verifyPassword()->setText(sheet.updatePassword()->text());
                          sheet.savePW();
                      }},
                 });
    return looks;
}

} // namespace lodestar::scenes

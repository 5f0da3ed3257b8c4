// SPDX-License-Identifier: Apache-2.0
#include "Application/PasswordCreationViewController.h"
#include "Application/SettingsViewController.h"
#include "Platform/UserDefaults.h"
#include "Tests/Scenes/SceneTest.h"
#include "Tests/Support/StoredPassword.h"

#include <tuple>

namespace lodestar::scenes
{
namespace
{

using SettingsTest = SceneTest;

TEST_F(SettingsTest, APasscodeIsSetAndChangedByHand)
{
    std::ignore = test::writePassword({});
    UserDefaults::standard().setBool(false, "requirePassword");
    const auto passcode = [] { return test::readPassword().value(); };
    // Up, with its bar on top of that many points.
    const auto waitForSheetOf = [this](double height) {
        return stage.waitFor([this, height] {
            const QQuickItem* const cancel = button("Cancel");
            return cancel != nullptr && cancel->mapToScene({}).y() == 844 - 44 - height;
        });
    };
    const auto isSwitchDrawnOn = [this] { return stage.item("passwordSwitch")->property("checked").toBool(); };
    stage.show({390, 844}, fleet());
    click(stage.item("settingsButton"));
    auto* const settings = qobject_cast<SettingsViewController*>(top());
    ASSERT_NE(settings, nullptr);
    ASSERT_TRUE(stage.waitFor([this] { return stage.item("passwordSwitch") != nullptr; }));
    stage.settle(200);
    EXPECT_FALSE(stage.item("passwordCell")->isEnabled());
    // By keyboard, which finds its ring again when the sheet is cancelled.
    press(Qt::Key_Tab);
    press(Qt::Key_Backtab);
    QQuickItem* const toggle = stage.window().activeFocusItem();
    press(Qt::Key_Space);
    ASSERT_TRUE(waitForSheetOf(119));
    EXPECT_TRUE(isSwitchDrawnOn());
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitForNoSheet());
    ASSERT_TRUE(stage.waitFor([&] { return stage.window().activeFocusItem() == toggle; }));
    EXPECT_TRUE(toggle->property("visualFocus").toBool());
    EXPECT_FALSE(isSwitchDrawnOn());

    click(stage.item("passwordSwitch"));
    ASSERT_TRUE(waitForSheetOf(119));
    EXPECT_EQ(text("Old passcode"), nullptr);
    type("first ");
    press(Qt::Key_Tab);
    type("first ");
    click(button("Save"));
    ASSERT_TRUE(waitForButton("Continue"));
    EXPECT_EQ(passcode(), "first ");
    ASSERT_TRUE(waitForNoSheet());
    stage.settle(150);
    click(button("Continue"));
    ASSERT_TRUE(stage.waitFor([this] { return button("Continue") == nullptr; }));
    EXPECT_TRUE(isSwitchDrawnOn());

    click(stage.item("passwordCell"));
    ASSERT_TRUE(waitForSheetOf(164));
    std::vector<double> tops;
    for (const char* label : {"Old passcode", "New passcode", "Verify passcode"}) {
        ASSERT_NE(text(label), nullptr) << label;
        tops.push_back(text(label)->mapToScene({}).y());
    }
    EXPECT_EQ(tops[1] - tops[0], 44);
    EXPECT_EQ(tops[2] - tops[1], 44);
    const QQuickItem* const note = text("Any characters, any length.");
    EXPECT_LE(note->mapToScene(QPointF(0, note->height())).y(), 844);
    settings->keyboardWillShow(260);
    EXPECT_TRUE(waitForSheetOf(164 + 260));
    settings->keyboardWillHide();
    type("wrong");
    press(Qt::Key_Tab);
    type("second");
    press(Qt::Key_Tab);
    type("second");
    click(button("Save"));
    ASSERT_TRUE(waitForButton("OK"));
    stage.settle(150);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor([this] { return button("OK") == nullptr; }));
    EXPECT_EQ(passcode(), "first ");
    EXPECT_NE(settings->semiModal(), nullptr);
    // The next try is written at once.
    stage.settle(200);
    type("x");
    EXPECT_EQ(dynamic_cast<PasswordCreationViewController&>(*settings->semiModal()->controller()).oldPassword()->text(),
              "x");
    press(Qt::Key_Escape);
    EXPECT_EQ(settings->semiModal(), nullptr);
    EXPECT_TRUE(waitForNoSheet());
}

} // namespace
} // namespace lodestar::scenes

// SPDX-License-Identifier: Apache-2.0
// The real window as a person meets it: on the first day, and with a keyboard on a small screen.
#include "Application/FeedbackSupport.h"
#include "Tests/Application/LockedWindowFixture.h"

namespace lodestar::lock
{
namespace
{

TEST_F(LockedWindowTest, TheTourIsShownOnTheFirstDayAndAfterAReset)
{
    const auto isTourShown = [this] { return spoken().count(QStringLiteral("Every console, one list")) == 1; };
    open(false);
    settle(300);
    EXPECT_FALSE(isTourShown());
    require();
    delegate.applicationDidBecomeActive();
    login()->resetApplicationData();
    EXPECT_TRUE(waitFor(isTourShown));
    FeedbackWindow::tearDown();

    // As the program starts: the first screen is there before it has a window to be shown in.
    UserDefaults::standard().removeObjectForKey("initialLoad");
    delegate.showInitialViewController();
    window().loadInterface();
    window().resize(390, 844);
    window().show();
    EXPECT_TRUE(waitFor(isTourShown));
}

TEST_F(LockedWindowTest, FieldsAreSeenOverAKeyboardOnAPhoneThatIsHeldAcross)
{
    const double top = 128;
    const double height = 390 - top;
    const auto isFieldSeen = [&] {
        const QQuickItem* const field = window().activeFocusItem();
        const QRectF shown = field->mapRectToScene(field->boundingRect());
        return field->inherits("QQuickTextInput") && shown.top() >= 0 && shown.bottom() <= top;
    };
    open(true);
    window().resize(844, 390);
    settle(300);
    ASSERT_EQ(window().size(), QSize(844, 390));
    setAround("keyboardFrame", QRectF(0, top, 844, height));
    EXPECT_TRUE(waitFor(isFieldSeen)) << "the passcode";
    type(secret);
    press(Qt::Key_Return); // takes the keyboard away
    login()->performLogin();

    SettingsViewController& settings = openSettings();
    settings.didSelectRowAtIndexPath({0, 1});
    settle(400);
    setAround("coveredHeight", height);
    settings.keyboardWillShow(height);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_TRUE(waitFor(isFieldSeen)) << "the last of the sheet's";
    settings.hideModalView();
    settle(400);

    const FeedbackSupport support(window(), QString::fromStdString(folder.path()), QStringLiteral("1.0.0"));
    shake();
    settle(400);
    for (int step = 0; step < 20 && window().activeFocusItem()->objectName() != QLatin1String("noteField"); ++step) {
        press(Qt::Key_Tab);
    }
    ASSERT_EQ(window().activeFocusItem()->objectName(), QStringLiteral("noteField"));
    setAround("coveredHeight", height);
    // It is taller than what is left: its first lines are seen.
    EXPECT_TRUE(waitFor([&] {
        const double noteTop = window().activeFocusItem()->mapToScene({0, 0}).y();
        return noteTop >= 40 && noteTop <= top - 60;
    }));
}

} // namespace
} // namespace lodestar::lock

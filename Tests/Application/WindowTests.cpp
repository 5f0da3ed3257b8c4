// SPDX-License-Identifier: Apache-2.0
// The real window as a person meets it: on the first day, and with a keyboard on a small screen.
#include "Application/FeedbackSupport.h"
#include "Application/WindowPlace.h"
#include "Platform/NotificationCenter.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Application/LockedWindowFixture.h"
#include "Views/Find/FindViewController.h"

#include <QScopedValueRollback>
#include <QScreen>
#include <QSensorBackend>
#include <QSensorManager>

#include <algorithm>
#include <exception>

namespace
{
bool isExitInTheMiddle = false;
}
/// The leak checker asks this: whoever leaves in the middle frees nothing, and the system takes all back.
extern "C" int __lsan_is_turned_off();
extern "C" int __lsan_is_turned_off()
{
    return isExitInTheMiddle ? 1 : 0;
}

namespace lodestar::lock
{
namespace
{

/// An accelerometer that is there, and at rest.
class Accelerometer final : public QSensorBackend, public QSensorBackendFactory
{
public:
    explicit Accelerometer(QSensor* sensor) : QSensorBackend(sensor) {}
    void start() override {}
    void stop() override {}
    QSensorBackend* createBackend(QSensor* sensor) override { return new Accelerometer(sensor); }
};

/// As the program starts: the first screen is there before it has a window to be shown in.
TEST_F(LockedWindowTest, TheTourIsShownOnTheFirstDay)
{
    delegate.showInitialViewController();
    window().loadInterface();
    window().resize(390, 844);
    window().show();
    EXPECT_TRUE(waitFor([this] { return spoken().contains(QStringLiteral("Every console, one list")); }));
}

/// As the platform does it when its display goes.
TEST_F(LockedWindowTest, AnExitInTheMiddleOfItAllEndsTheProcessAndCrashesNothing)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    open(false);
    const auto exit = [] {
        isExitInTheMiddle = true;
        std::exit(7);
    };
    EXPECT_EXIT(exit(), ::testing::ExitedWithCode(7), "");
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

TEST_F(LockedWindowTest, FindOpensFromAnywhereButNotBehindTheLock)
{
    open(true);
    press(Qt::Key_K, Qt::ControlModifier);
    ASSERT_NE(login(), nullptr);
    unlock();
    settle(300);
    const NavigationController& stack = *list().navigationController();
    ASSERT_EQ(stack.depth(), 1);
    list().addCorvel();
    settle(300);
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(stack.depth(), 1) << "a sheet is up";
    list().dismissSemiModalView();
    settle(300);

    list().openSettings();
    settle(300);
    press(Qt::Key_K, Qt::ControlModifier);
    settle(400);
    auto* const find = qobject_cast<FindViewController*>(stack.topViewController());
    ASSERT_NE(find, nullptr);
    type(QStringLiteral("ab"));
    EXPECT_EQ(find->searchBar()->text(), QStringLiteral("ab"));
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(stack.topViewController(), find) << "is there already";
    press(Qt::Key_Escape);
    settle(300);
    EXPECT_EQ(stack.depth(), 2);
}

TEST_F(LockedWindowTest, KeysOpenHelpCommandsSettingsAndTabsButNotBehindTheLock)
{
    open(true);
    press(Qt::Key_F1);
    ASSERT_NE(login(), nullptr);
    EXPECT_EQ(login()->semiModal(), nullptr);
    unlock();
    settle(300);
    auto& tabs = *qobject_cast<TabBarController*>(window().rootViewController());
    press(Qt::Key_Question);
    ASSERT_NE(tabs.semiModal(), nullptr);
    EXPECT_EQ(tabs.semiModal()->controller()->title(), QStringLiteral("Keyboard"));
    settle(300);
    press(Qt::Key_Escape);
    EXPECT_EQ(tabs.semiModal(), nullptr);
    settle(300);
    press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_NE(tabs.semiModal(), nullptr);
    settle(300);
    type(QStringLiteral("settings?"));
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    EXPECT_EQ(tabs.semiModal(), nullptr);
    settle(300);
    const NavigationController& stack = *list().navigationController();
    EXPECT_NE(qobject_cast<SettingsViewController*>(stack.topViewController()), nullptr);
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(stack.depth(), 2) << "is there already";
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(tabs.selectedIndex(), 2);
}

TEST_F(LockedWindowTest, ComesBackWhereItStoodAndWithTheButtonThatItsDeviceNeeds)
{
    std::unique_ptr<WindowPlace> place;
    const auto start = [&] {
        place.reset();
        FeedbackWindow::tearDown();
        reopenKeptState();
        window().resize(390, 844);
        place = std::make_unique<WindowPlace>(window());
    };
    constexpr int settling = 700; // milliseconds
    std::ofstream(folder.file("Lodestar.state")) << "[Strings]\nwindow=60 4\n[";
    start();
    EXPECT_EQ(window().size(), QSize(390, 844)) << "nothing is known";
    open(false);
    window().setGeometry(60, 40, 500, 600);
    settle(settling);
    const QPoint stood = window().framePosition();
    window().setWindowStates(Qt::WindowMaximized);
    settle(settling);
    ASSERT_NE(window().size(), QSize(500, 600));
    start();
    EXPECT_TRUE(window().windowStates().testFlag(Qt::WindowMaximized));
    EXPECT_EQ(window().size(), QSize(500, 600)) << "what it goes back to";
    EXPECT_EQ(window().framePosition(), stood);

    // With other screens it stood elsewhere since; with these it is back where it was.
    place.reset();
    KeptState::shared().setString("5000 40 3000 600", "window");
    start();
    EXPECT_EQ(window().size(), QSize(500, 600));
    EXPECT_EQ(window().framePosition(), stood);

    // Screens that are new, after one that is not there any more and was larger.
    place.reset();
    std::ofstream(folder.file("Lodestar.state")) << "[Strings]\nwindow=5000 40 3000 600\n";
    start();
    EXPECT_TRUE(window().screen()->availableGeometry().contains(window().geometry()));
    EXPECT_EQ(window().height(), 600);

    // As the program's start sets it.
    const QScopedValueRollback shaking(VireoLogger::settings().reportOnShake, true);
    const auto isButtonHidden = [&] {
        start();
        bool isDecided = false;
        const auto decided = NotificationCenter::defaultCenter().addObserver("FeedbackEntryDidChange",
                                                                             [&isDecided] { isDecided = true; });
        const FeedbackSupport support(window(), QString::fromStdString(folder.path()), QStringLiteral("1.0.0"));
        open(false);
        EXPECT_TRUE(waitFor([&] { return isDecided; }));
        return list().isFeedbackHidden();
    };
    EXPECT_FALSE(isButtonHidden());
    Accelerometer factory(nullptr);
    QSensorManager::registerBackend("QAccelerometer", "test.accelerometer", &factory);
    QSensorManager::setDefaultBackend("QAccelerometer", "test.accelerometer");
    EXPECT_TRUE(isButtonHidden());
    QSensorManager::unregisterBackend("QAccelerometer", "test.accelerometer");
    EXPECT_FALSE(isButtonHidden());
    place.reset();
}

TEST_F(LockedWindowTest, AConsoleThatCannotBeReachedReadsOfflineUntilItAnswers)
{
    simulator::SimulatorProcess fleet({.consoles = 2});
    for (const int number : {0, 1}) {
        const CorvelRef corvel = addConsole(fleet.address(number), fleet.user(), fleet.password());
        corvel->setName("Console " + std::to_string(number));
        RESTHandler::sharedInstance().addCorvel(corvel);
    }
    fleet.setFault("closePort:0");
    open(false);
    const auto isTold = [this](const char* sentence) {
        return std::ranges::any_of(
            spoken(), [sentence](const QString& text) { return text.startsWith(QString::fromLatin1(sentence)); });
    };
    EXPECT_TRUE(waitFor([&] {
        return isTold("Console 0, Offline, attention 0, events 0") && isTold("Console 1, Error, attention 3, events 8");
    }));
    fleet.clearFaults();
    list().refresh();
    EXPECT_TRUE(waitFor([&] { return isTold("Console 0, Error, attention 3, events 8"); }));
}

TEST_F(LockedWindowTest, UncaughtExceptionsAreReportedAndTheEndSavesWhatIsPending)
{
    delegate.didFinishLaunchingWithOptions();
    EXPECT_EQ(std::get_terminate(), &VireoLogger::uncaughtExceptionHandler);
    delegate.managedObjectContext().insertNewObject(Corvel::entityName);
    delegate.applicationWillTerminate();
    StoreStack::shared().close();
    EXPECT_EQ(RESTHandler::sharedInstance().fetchCorvels().size(), 1U);
    VireoLogger::settings() = {};
}

} // namespace
} // namespace lodestar::lock

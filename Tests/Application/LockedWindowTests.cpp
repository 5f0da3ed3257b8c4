// SPDX-License-Identifier: Apache-2.0
// The lock as an attacker meets it: the real window, every way in but the passcode.
#include "Application/AttentionOpener.h"
#include "Application/FeedbackSupport.h"
#include "Application/PrivacyCover.h"
#include "Feedback/UI/ScreenGrabber.h"
#include "Tests/Application/LockedWindowFixture.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Common/TabRoot.h"

#include <QClipboard>
#include <qpa/qwindowsysteminterface.h>

#include <algorithm>

namespace lodestar::lock
{

TEST_F(LockedWindowTest, NothingOfTheOldInterfaceStaysWhateverWasOpen)
{
    open(true);
    ASSERT_NE(login(), nullptr);
    const QImage locked = window().grabWindow();
    const std::set<QString> lockedTexts = spoken();

    const std::vector<std::function<void()>> openers = {
        [this] { list().addCorvel(); },
        [this] {
            openSettings().didSelectRowAtIndexPath({1, 0});
        },
        [this] {
            SettingsViewController& settings = openSettings();
            settings.didSelectRowAtIndexPath({0, 1});
            settings.alert()->present("Password Saved", {}, {{"Continue"}}, 0, {});
        },
    };
    for (std::size_t index = 0; index < openers.size(); ++index) {
        SCOPED_TRACE(index);
        unlock();
        openers[index]();
        settle(400);
        ASSERT_NE(window().grabWindow(), locked);
        const std::weak_ptr<ViewController> main = window().rootViewController()->weak_from_this();
        const std::weak_ptr<ViewController> screen = list().weak_from_this();

        reactivate();
        EXPECT_TRUE(main.expired());
        EXPECT_TRUE(screen.expired());
        EXPECT_EQ(spoken(), lockedTexts);
    }
}

TEST_F(LockedWindowTest, NoKeyLeadsBehindIt)
{
    open(false);
    openSettings().alert()->present("Password Saved", {}, {{"Continue"}}, 0, {});
    settle(300);
    require();
    reactivate();
    LoginViewController* const lock = login();
    std::set<QQuickItem*> reached;
    for (int step = 0; step < 12; ++step) {
        press(Qt::Key_Tab);
        reached.insert(window().activeFocusItem());
    }
    EXPECT_EQ(reached.size(), 3U) << "the field and the two buttons";
    for (const QQuickItem* item : reached) {
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(item->isVisible());
    }
    for (const Qt::Key key :
         {Qt::Key_Escape, Qt::Key_Back, Qt::Key_F5, Qt::Key_Menu, Qt::Key_Home, Qt::Key_Left, Qt::Key_N, Qt::Key_R}) {
        press(key);
        press(key, Qt::AltModifier);
        press(key, Qt::ControlModifier);
    }
    settle(50);
    EXPECT_EQ(login(), lock);
}

TEST_F(LockedWindowTest, TheTextIsNotGivenAway)
{
    open(true);
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    type(QStringLiteral("wr0ng"));
    ASSERT_EQ(login()->passwordTextField()->text(), QStringLiteral("wr0ng"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
    const auto isGivenAway = [this] {
        return std::ranges::any_of(spoken(), [](const QString& text) { return text.contains(u"wr0"); });
    };
    EXPECT_FALSE(isGivenAway());
    EXPECT_EQ(spoken().count(QStringLiteral("Passcode")), 1U) << "the field has its name";
    login()->passwordTextField()->setText(QStringLiteral("wr0ng"));
    press(Qt::Key_Return);
    EXPECT_TRUE(login()->alert()->isPresented());
    settle(300);
    press(Qt::Key_Escape);
    EXPECT_FALSE(login()->alert()->isPresented());
    settle(300);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(login()->passwordTextField()->text(), QString());
    unlock();

    openSettings().didSelectRowAtIndexPath({0, 1});
    settle(300);
    type(QStringLiteral("wr0ng"));
    EXPECT_FALSE(isGivenAway());
    EXPECT_EQ(spoken().count(QStringLiteral("Old passcode")), 1U);
    EXPECT_THAT(logged(), ::testing::Not(::testing::HasSubstr("wr0")));
}

TEST_F(LockedWindowTest, WhatIsOutOfSightIsCoveredAndWhatIsInSightIsLeftAlone)
{
    using Device = PrivacyCover::Device;
    const auto lock = [this] { delegate.applicationDidBecomeActive(); };
    open(false);
    PrivacyCover desk(window(), Device::Desk, lock);
    openSettings().alert()->present("Password Saved", {}, {{"Continue"}}, 0, {});
    settle(300);
    const QImage shown = window().grabWindow();
    const std::set<QString> shownTexts = spoken();
    const auto isCovered = [this] {
        std::set<QString> texts = spoken();
        texts.erase(window().title());
        return showsOnlyTheMark(window().grabWindow(), 422) && texts.empty();
    };
    {
        PrivacyCover phone(window(), Device::Phone, lock);
        phone.applicationStateDidChange(Qt::ApplicationInactive);
        EXPECT_EQ(window().grabWindow(), shown) << "nothing is required";
    }
    require();
    desk.applicationStateDidChange(Qt::ApplicationInactive);
    EXPECT_EQ(window().grabWindow(), shown) << "somebody else has the keyboard, that is all";
    EXPECT_EQ(spoken(), shownTexts);
    desk.applicationStateDidChange(Qt::ApplicationSuspended);
    EXPECT_TRUE(isCovered());
    desk.applicationStateDidChange(Qt::ApplicationActive);
    ASSERT_NE(login(), nullptr);
    EXPECT_TRUE(showsOnlyTheMark(window().grabWindow(), 844 / 3)) << "before any event has run";

    unlock();
    settle(300);
    window().hide();
    desk.applicationStateDidChange(Qt::ApplicationInactive);
    window().show();
    ASSERT_TRUE(waitFor([this] { return window().isExposed(); }));
    EXPECT_TRUE(isCovered()) << "in sight again, but nobody has come back to it";
    desk.applicationStateDidChange(Qt::ApplicationActive);
    ASSERT_NE(login(), nullptr);
    settle(300);
    unlock();

    PrivacyCover phone(window(), Device::Phone, lock);
    phone.applicationStateDidChange(Qt::ApplicationInactive);
    EXPECT_TRUE(isCovered()) << "switched away from";
}

TEST_F(LockedWindowTest, FeedbackNeitherPassesTheLockNorTellsWhatIsBehindIt)
{
    const FeedbackSupport support(window(), QString::fromStdString(folder.path()), QStringLiteral("1.0.0"));
    const ReportStore reports(folder.file("Reports"));
    open(false);
    window().motionBegan(FeedbackWindow::EventType::RemoteControl, FeedbackWindow::EventSubtype::RemoteControlPlay);
    EXPECT_EQ(feedback(), nullptr);
    shake();
    feedback()->noteView()->setText(QStringLiteral("begun before"));
    settle(300);
    shake();
    EXPECT_EQ(feedback()->noteView()->text(), QStringLiteral("begun before")) << "one at a time";

    require();
    reactivate();
    LoginViewController* const lock = login();
    EXPECT_EQ(spoken().count(QStringLiteral("begun before")), 0U);
    type(QStringLiteral("wr0ng"));
    const QImage ofTheLock = grabCovered(window());
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_NE(feedback(), nullptr);
    EXPECT_EQ(feedback()->noteView()->text(), QString());
    EXPECT_EQ(feedback()->sketch()->composed(), ofTheLock);
    settle(300);
    feedback()->submit();
    ASSERT_TRUE(waitFor([this] { return feedback()->alert()->isPresented(); }));
    feedback()->alert()->choose(0);
    ASSERT_EQ(reports.list().size(), 1U);
    EXPECT_EQ(reports.read(reports.list().front().identifier).value().log, "");
    settle(300);
    EXPECT_EQ(login(), lock) << "the lock is still up";
    press(Qt::Key_A, Qt::ControlModifier);
    unlock();
    ASSERT_NE(feedback(), nullptr);
    EXPECT_EQ(feedback()->noteView()->text(), QStringLiteral("begun before"));
    settle(300);

    // What was begun over the lock when that came up anew holds nothing up: neither the lock nor what is behind it.
    reactivate();
    shake();
    feedback()->noteView()->setText(QStringLiteral("begun over it"));
    settle(300);
    reactivate();
    EXPECT_EQ(feedback(), nullptr);
    unlock();
    for (const QString& note : {QStringLiteral("begun over it"), QStringLiteral("begun before")}) {
        SCOPED_TRACE(note.toStdString());
        settle(300);
        ASSERT_NE(feedback(), nullptr);
        EXPECT_EQ(feedback()->noteView()->text(), note);
        press(Qt::Key_Escape);
        ASSERT_TRUE(feedback()->alert()->isPresented()) << "the screen has the keyboard";
        feedback()->alert()->choose(1);
    }
    settle(300);
    EXPECT_EQ(feedback(), nullptr);
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_NE(list().semiModal(), nullptr) << "the list has the keyboard again";
    shake();
    settle(300);

    // Who resets instead of unlocking gets nothing of it.
    delegate.applicationDidBecomeActive();
    login()->resetApplicationData();
    EXPECT_EQ(login(), nullptr);
    EXPECT_EQ(feedback(), nullptr);
    EXPECT_TRUE(reports.list().empty());
}

TEST_F(LockedWindowTest, ATapOnAMessageShowsAttentionOnceThePasscodeIsGiven)
{
    constexpr int attention = 2;
    const auto tabs = [this]() -> TabBarController& {
        return dynamic_cast<TabBarController&>(*window().rootViewController());
    };
    open(true);
    AttentionOpener opener(window());
    opener.open();
    ASSERT_NE(login(), nullptr);
    unlock();
    EXPECT_EQ(tabs().selectedIndex(), attention);
    reactivate();
    unlock();
    EXPECT_EQ(tabs().selectedIndex(), 0) << "the tap is forgotten";
    AttentionViewController* const screen = rootOf<AttentionViewController>(tabs()).first;
    screen->openWatch();
    opener.open();
    EXPECT_EQ(tabs().selectedIndex(), attention) << "nothing stands in between";
    EXPECT_EQ(screen->navigationController()->topViewController(), screen)
        << "a screen opened from it does not cover it";

    window().hide();
    QWindowSystemInterface::handleApplicationStateChanged(Qt::ApplicationInactive);
    ASSERT_TRUE(waitFor([] { return QGuiApplication::applicationState() != Qt::ApplicationActive; }));
    opener.open();
    EXPECT_TRUE(window().isVisible());
    reactivate(); // the lock comes with the window
    settle(300);
    unlock();
    EXPECT_EQ(tabs().selectedIndex(), attention);
}

} // namespace lodestar::lock

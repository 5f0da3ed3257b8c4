// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/AppDelegate.h"
#include "Application/FeedbackWindow.h"
#include "Application/SettingsViewController.h"
#include "Feedback/UI/FeedbackViewController.h"
#include "Kit/Core/Appearance.h"
#include "Kit/Core/NavigationController.h"
#include "Tests/Application/LockFixture.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickItem>
#include <QTest>

#include <set>

namespace lodestar::lock
{

/// The real window over the fixture's store, with a passcode set.
class LockedWindowTest : public LockTest
{
protected:
    static inline const QString secret = QStringLiteral("s3cret");

    LockedWindowTest()
    {
        QAccessible::setActive(true);
        Appearance::shared().overrideReducedMotion(true);
        registerMainStoryboard([this](const auto& shown) { delegate.window()->setRootViewController(shown); });
        passcode() = secret.toStdString();
    }
    ~LockedWindowTest() override
    {
        FeedbackWindow::tearDown();
        settle();
        Appearance::shared().overrideReducedMotion({});
        QAccessible::setActive(false);
    }

    FeedbackWindow& window() const { return *delegate.window(); }
    void open(bool required)
    {
        require(required);
        delegate.showInitialViewController();
        window().loadInterface();
        window().resize(390, 844);
        window().show();
        window().requestActivate();
        ASSERT_TRUE(waitFor([this] { return window().isExposed() && window().isActive(); }));
        settle(300);
    }
    static void settle(int milliseconds = 20) { QTest::qWait(milliseconds); }
    static bool waitFor(const std::function<bool()>& predicate) { return QTest::qWaitFor(predicate, 10'000); }
    LoginViewController* login() const { return dynamic_cast<LoginViewController*>(window().rootViewController()); }
    CorvelListViewController& list() const
    {
        const auto* tabs = dynamic_cast<TabBarController*>(window().rootViewController());
        const auto* stack = dynamic_cast<NavigationController*>(tabs->controllerAt(0));
        return *dynamic_cast<CorvelListViewController*>(stack->rootViewController());
    }
    SettingsViewController& openSettings() const
    {
        list().openSettings();
        return *dynamic_cast<SettingsViewController*>(list().navigationController()->topViewController());
    }
    /// Everything that a screen reader can reach in the window.
    std::set<QString> spoken() const
    {
        std::set<QString> texts;
        collect(QAccessible::queryAccessibleInterface(&window()), texts);
        texts.erase(QString());
        return texts;
    }
    static void collect(QAccessibleInterface* element, std::set<QString>& texts)
    {
        if (element == nullptr || !element->isValid()) {
            return;
        }
        for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
            texts.insert(element->text(kind));
        }
        if (QAccessibleTextInterface* const text = element->textInterface()) {
            texts.insert(text->text(0, text->characterCount()));
        }
        for (int index = 0; index < element->childCount(); ++index) {
            collect(element->child(index), texts);
        }
    }
    static bool showsOnlyTheMark(const QImage& picture, int centre)
    {
        const QColor ground = picture.pixelColor(0, 0);
        QImage rest = picture;
        QPainter(&rest).fillRect(QRect(146, centre - 49, 98, 98), ground);
        QImage empty = picture;
        empty.fill(ground);
        return rest == empty && picture.pixelColor(195, centre - 20) != ground;
    }
    FeedbackViewController* feedback() const
    {
        auto* const stack = qobject_cast<NavigationController*>(window().feedbackHost()->screen());
        return stack == nullptr ? nullptr : qobject_cast<FeedbackViewController*>(stack->rootViewController());
    }
    void shake() const
    {
        window().motionBegan(FeedbackWindow::EventType::Motion, FeedbackWindow::EventSubtype::MotionShake);
        ASSERT_NE(feedback(), nullptr);
    }
    /// Sets a property of whatever holds the item with the keyboard.
    void setAround(const char* name, const QVariant& value) const
    {
        for (QQuickItem* item = window().activeFocusItem(); item != nullptr; item = item->parentItem()) {
            // A popup is no item, but its item's parent.
            for (QObject* holder : {static_cast<QObject*>(item), item->parent()}) {
                if (holder != nullptr && holder->property(name).isValid()) {
                    holder->setProperty(name, value);
                    return;
                }
            }
        }
        ADD_FAILURE() << name;
    }
    void type(const QString& text) const
    {
        for (const QChar letter : text) {
            QTest::keyClick(&window(), letter.toLatin1());
        }
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(&window(), key, modifiers); }

    /// As when the application becomes active again: the system may show a frame before any event has run.
    void reactivate()
    {
        delegate.applicationDidBecomeActive();
        ASSERT_NE(login(), nullptr);
        EXPECT_TRUE(showsOnlyTheMark(window().grabWindow(), 844 / 3));
        settle(300);
    }
    /// By the lock's field, which has the keyboard.
    void unlock() const
    {
        type(secret);
        press(Qt::Key_Return);
        EXPECT_EQ(login(), nullptr);
    }

    AppDelegate delegate;
};

} // namespace lodestar::lock

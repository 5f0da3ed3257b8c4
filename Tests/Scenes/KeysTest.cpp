// SPDX-License-Identifier: Apache-2.0
// The keyboard and the pointer on every screen.
#include "Application/Commands.h"
#include "Kit/Core/Pressable.h"
#include "Tests/Scenes/SceneTest.h"

#include <QStyleHints>
#include <QWheelEvent>

#include <set>

namespace lodestar::scenes
{
namespace
{

class KeysTest : public SceneTest
{
protected:
    KeysTest() { QGuiApplication::styleHints()->setUseHoverEffects(true); } // as where there is a pointer
    ~KeysTest() override { QGuiApplication::styleHints()->setUseHoverEffects(false); }
    QQuickItem* focused() const { return stage.window().activeFocusItem(); }

    static bool hasRing(const QQuickItem* item)
    {
        return std::ranges::any_of(item->childItems(), [](const QQuickItem* child) {
            const bool isRing = QByteArray(child->metaObject()->className()).startsWith("FocusRing");
            return child->isVisible() && (isRing ? child->property("shown").toBool() : hasRing(child));
        });
    }
    /// Fields draw a caret, charts their own ring, and documents one for all their rows.
    bool showsFocus(const QQuickItem* item) const
    {
        return item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit") || hasRing(item) ||
               item->inherits("lodestar::ChartItem") || isInRingedList(item);
    }
    static bool isInRingedList(const QQuickItem* item)
    {
        while (item != nullptr && !item->inherits("QQuickListView")) {
            item = item->parentItem();
        }
        return item != nullptr && hasRing(item);
    }
    /// What Tab meets until it comes back to where it began.
    std::vector<QQuickItem*> walk(Qt::Key key) const
    {
        std::vector<QQuickItem*> met;
        for (int steps = 0; steps < 150; ++steps) {
            press(key);
            stage.settle(1); // what scrolls, scrolls
            QQuickItem* const now = focused();
            if (now == nullptr || (!met.empty() && now == met.front())) {
                break;
            }
            met.push_back(now);
        }
        return met;
    }
    std::string named(const QQuickItem* item) const
    {
        return std::string(item->metaObject()->className()) + " " + item->objectName().toStdString() + " " +
               item->property("text").toString().toStdString();
    }
    void expectAllIsReached(const std::string& where)
    {
        const std::vector<QQuickItem*> met = walk(Qt::Key_Tab);
        ASSERT_FALSE(met.empty()) << where;
        std::set<QQuickItem*> reached;
        for (QQuickItem* const item : met) {
            EXPECT_TRUE(reached.insert(item).second)
                << where << ": a circle that leaves out the first, " << named(item);
        }
        for (QQuickItem* const button : stage.buttons()) {
            const auto* const pressable = qobject_cast<Pressable*>(button);
            const bool counts = pressable->isPressable() && pressable->isEnabled() && pressable->activeFocusOnTab();
            EXPECT_TRUE(!counts || reached.contains(button)) << where << ": " << named(button);
        }
        // Back the same way: the first is where the walk began.
        std::vector<QQuickItem*> back = walk(Qt::Key_Backtab);
        EXPECT_EQ(std::set(back.begin(), back.end()), reached) << where;
    }
    void wheel(const QQuickItem* over, int angle) const
    {
        QWheelEvent event(centerOf(over), stage.window().mapToGlobal(centerOf(over)), {}, {0, angle}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&stage.window(), &event);
        stage.settle(30);
    }
};

TEST_F(KeysTest, TabReachesEveryControlOfEveryScreenAndShowsWhereItIs)
{
    const CorvelRef corvel = demoConsole();
    for (const AnyScene& scene : everyScene(corvel)) {
        SCOPED_TRACE(scene.name);
        stage.show({390, 844}, fleet());
        stage.list().navigationController()->pushViewController(scene.make(), Animated::No);
        stage.settle(250);
        press(Qt::Key_Tab);
        ASSERT_NE(focused(), nullptr);
        EXPECT_TRUE(showsFocus(focused())) << "from the first Tab: " << named(focused());
        expectAllIsReached(scene.name);
        for (QQuickItem* const item : walk(Qt::Key_Tab)) {
            item->forceActiveFocus(Qt::TabFocusReason);
            EXPECT_TRUE(showsFocus(item)) << named(item);
        }
    }
}

TEST_F(KeysTest, ArrowsStepFromTheTabThatHasTheKeyboardAlongTheBarOrTheRail)
{
    struct Bar {
        QSize window;
        bool mirrored;
        Qt::Key on;
        Qt::Key back;
        Qt::Key across;
    };
    for (const Bar& bar : {Bar{{390, 844}, false, Qt::Key_Right, Qt::Key_Left, Qt::Key_Down},
                           Bar{{390, 844}, true, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up},
                           Bar{{1280, 800}, true, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left}}) {
        Appearance::shared().overrideMirrored(bar.mirrored);
        stage.show(bar.window, fleet());
        stage.settle(100);
        button("Dashboard")->forceActiveFocus(Qt::TabFocusReason); // not the tab that is shown
        for (const auto& [key, tab] : {std::pair(bar.on, 2),
                                       {bar.on, 2},
                                       {bar.across, 2},
                                       {bar.back, 1},
                                       {bar.back, 0},
                                       {bar.back, 0},
                                       {bar.on, 1}}) {
            press(key);
            EXPECT_EQ(stage.tabs().selectedIndex(), tab) << bar.window.width() << bar.mirrored;
            EXPECT_EQ(focused()->property("index"), tab);
            EXPECT_TRUE(hasRing(focused()));
        }
    }
}

TEST_F(KeysTest, SheetsKeepTabInside)
{
    stage.show({390, 844}, fleet());
    stage.openEditor();
    ASSERT_TRUE(waitForSheet());
    const auto met = walk(Qt::Key_Tab);
    const std::set<QQuickItem*> reached(met.begin(), met.end());
    EXPECT_TRUE(reached.contains(button("Cancel")));
    EXPECT_TRUE(reached.contains(button("Save")));
    EXPECT_FALSE(reached.contains(stage.item("addButton"))) << "the screen below takes no key";
}

TEST_F(KeysTest, TheSheetTellsTheKeysOfTheScreenAndRunsWhatIsChosen)
{
    stage.show({390, 844}, fleet());
    const auto titlesOf = [](const KeySheetController& sheet) {
        QStringList titles;
        for (const QVariant& row : sheet.rows()) {
            titles << row.value<KeyRow>().title;
        }
        return titles;
    };
    Commands::showHelp(&stage.tabs());
    ASSERT_TRUE(waitForButton("Done"));
    const auto& help = *qobject_cast<KeySheetController*>(stage.tabs().semiModal()->controller());
    EXPECT_TRUE(titlesOf(help).contains("Add console"));
    EXPECT_FALSE(titlesOf(help).contains("Copy value")) << "the list has no such key";
    EXPECT_NE(text("Ctrl+N"), nullptr);
    EXPECT_NE(text("On this screen"), nullptr);
    press(Qt::Key_Escape);
    EXPECT_EQ(stage.tabs().semiModal(), nullptr);
    ASSERT_TRUE(stage.waitFor([this] { return button("Done") == nullptr; }));

    Commands::showCommands(&stage.tabs());
    ASSERT_TRUE(waitForButton("Cancel"));
    stage.settle(300);
    type("ADD CON");
    auto& commands = *qobject_cast<KeySheetController*>(stage.tabs().semiModal()->controller());
    EXPECT_EQ(titlesOf(commands), QStringList({"Add console"}));
    commands.setSearchText(QStringLiteral("âdd côn"));
    EXPECT_EQ(titlesOf(commands), QStringList({"Add console"}));
    press(Qt::Key_Down);
    EXPECT_EQ(focused()->property("text"), "Add console");
    EXPECT_TRUE(hasRing(focused()));
    press(Qt::Key_Return);
    EXPECT_EQ(stage.tabs().semiModal(), nullptr);
    EXPECT_NE(stage.list().semiModal(), nullptr);
    stage.settle();
    EXPECT_TRUE(focused()->inherits("QQuickTextInput")) << "the form has the keyboard";
}

TEST_F(KeysTest, TheDemoComesBackByTouchAndByCommand)
{
    stage.show({390, 844}, fleet());
    ASSERT_FALSE(CorvelListViewController::hasDemo());
    const auto count = [this] { return stage.list().tableView()->rows(); };
    const int own = count();
    stage.open(Scenes::fleetSheetView, NoInput());
    stage.settle();
    click(stage.item("demoRow"));
    stage.settle();
    EXPECT_EQ(top(), &stage.list());
    EXPECT_EQ(count(), own + 1);
    stage.list().lookAtDemo();
    EXPECT_EQ(count(), own + 1) << "once is enough";
    for (const Command& command : Commands::of(stage.tabs())) {
        EXPECT_NE(command.title, "Bring back the demo");
    }

    // Alone, it says what to do next.
    stage.show({390, 844}, {});
    stage.settle();
    EXPECT_NE(text("No consoles yet."), nullptr);
    click(button("Look at the Demo First"));
    ASSERT_TRUE(waitForText("No console of your own yet."));
    click(button("Add Corvel"));
    EXPECT_NE(stage.list().semiModal(), nullptr);
}

TEST_F(KeysTest, TheWheelScrollsAsTheSystemSaysAndLeavesTheRestToWhatLiesAround)
{
    stage.show({390, 400}, fleet());
    const QQuickItem* const list = stage.items(QStringLiteral("CardTable")).front();
    const auto* const flickable = list->property("flickable").value<QQuickItem*>();
    const double start = flickable->property("contentY").toDouble();
    const auto scrolled = [&] { return flickable->property("contentY").toDouble() - start; };
    wheel(list, -120);
    EXPECT_EQ(scrolled(), 24 * QGuiApplication::styleHints()->wheelScrollLines());
    Appearance::shared().overrideReducedMotion(false);
    wheel(list, -60);
    EXPECT_TRUE(stage.waitFor([&] { return !flickable->property("moving").toBool(); }));
    EXPECT_NEAR(scrolled(), 36 * QGuiApplication::styleHints()->wheelScrollLines(), 1.5);
    wheel(list, 1200);
    EXPECT_TRUE(stage.waitFor([&] { return !flickable->property("moving").toBool(); }));
    EXPECT_NEAR(scrolled(), 0, 1.5) << "and no further than its end";
}

TEST_F(KeysTest, TheRestingPointerTellsAButtonsNameAndKeys)
{
    stage.show({1280, 800}, fleet());
    QTest::mouseMove(&stage.window(), centerOf(stage.item("addButton")));
    const QString words = QStringLiteral("Add console (Ctrl+N)");
    ASSERT_TRUE(waitForText(words));
    const QQuickItem* const tip = text(words)->parentItem();
    EXPECT_LT(tip->mapToScene({tip->width(), 0}).x(), 1280);
    QTest::mouseMove(&stage.window(), {600, 700});
    EXPECT_TRUE(stage.waitFor([&] { return text(words) == nullptr; }));
}

} // namespace
} // namespace lodestar::scenes

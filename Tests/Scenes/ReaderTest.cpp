// SPDX-License-Identifier: Apache-2.0
#include "Application/IntroView.h"
#include "Application/SettingsViewController.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/UI/ScreenGrabber.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/ManagedSystems/PCM/PCMViewController.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>

namespace lodestar::scenes
{
namespace
{

using Node = QAccessibleInterface*;

/// The scenes as an assistive program finds them, and all that it can do with them.
class ReaderTest : public SceneTest
{
protected:
    ReaderTest() { QAccessible::setActive(true); }
    ~ReaderTest() override { QAccessible::setActive(false); }

    /// All that is shown, in reading order.
    std::vector<Node> tree() const
    {
        std::vector<Node> found;
        collect(QAccessible::queryAccessibleInterface(&stage.window()), found);
        return found;
    }
    static void collect(Node from, std::vector<Node>& found)
    {
        for (int index = 0; index < from->childCount(); ++index) {
            Node const child = from->child(index);
            EXPECT_EQ(from->indexOfChild(child), index);
            if (!child->state().invisible) {
                EXPECT_TRUE(child->parent() == from) << nameOf(child);
                found.push_back(child);
                collect(child, found);
            }
        }
    }
    static std::string nameOf(Node node) { return node->text(QAccessible::Name).toStdString(); }
    Node find(const std::string& name) const
    {
        const std::vector<Node> all = tree();
        const auto found = std::find_if(all.begin(), all.end(), [&name](Node node) { return nameOf(node) == name; });
        return found == all.end() ? nullptr : *found;
    }
    bool waitFor(const std::string& name) const
    {
        return stage.waitFor([&] { return find(name) != nullptr; });
    }
    static QStringList actionsOf(Node node)
    {
        return node->actionInterface() == nullptr ? QStringList() : node->actionInterface()->actionNames();
    }
    void act(const std::string& name, const QString& action = QAccessibleActionInterface::pressAction()) const
    {
        ASSERT_TRUE(waitFor(name)) << name;
        Node const node = find(name);
        ASSERT_EQ(actionsOf(node).count(action), 1) << name << ": " << actionsOf(node).join(' ').toStdString();
        node->actionInterface()->doAction(action);
        stage.settle(200); // what slides away
    }
    static bool isControl(Node node)
    {
        const QAccessible::Role role = node->role();
        return role == QAccessible::Button || role == QAccessible::PageTab || role == QAccessible::MenuItem ||
               role == QAccessible::CheckBox || role == QAccessible::RadioButton || role == QAccessible::EditableText;
    }
    /// A list comes after its title and has a name, and reads downwards. All that the pointer presses a reader finds as
    /// a control; every control has a name; what is disabled or only rests has no Press.
    void expectReadable(const std::string& scene) const
    {
        SCOPED_TRACE(scene);
        const std::vector<Node> all = tree();
        for (const QQuickItem* item : stage.buttons()) {
            const auto isItem = [item](Node node) { return node->object() == item && isControl(node); };
            EXPECT_TRUE(item->property("pressable") == false || std::any_of(all.begin(), all.end(), isItem))
                << item->property("text").toString().toStdString();
        }
        bool hasTitle = false;
        for (Node const node : all) {
            const QAccessible::Role role = node->role();
            hasTitle = hasTitle || role == QAccessible::Heading;
            EXPECT_TRUE((!isControl(node) && role != QAccessible::List && role != QAccessible::ListItem) ||
                        !nameOf(node).empty())
                << "without a name, in " << nameOf(node->parent());
            if (isControl(node) && role != QAccessible::EditableText) {
                EXPECT_NE(node->state().disabled, isPressed(node)) << nameOf(node);
            }
            if (role == QAccessible::ListItem) {
                EXPECT_EQ(isPressed(node), bool(node->state().selectable)) << nameOf(node);
            }
            if (role == QAccessible::List) {
                EXPECT_TRUE(hasTitle) << nameOf(node);
                for (int index = 1; index < node->childCount(); ++index) {
                    EXPECT_GE(node->child(index)->rect().top(), node->child(index - 1)->rect().bottom());
                }
            }
        }
    }
    /// Whoever only hears the scene misses no word that is drawn: whatever is drawn at a height is told there. A
    /// field's placeholder is left aside, which is there for the eye.
    void expectAllIsTold(const std::string& scene) const
    {
        static const QRegularExpression word("[\\p{L}\\p{N}]+", QRegularExpression::UseUnicodePropertiesOption);
        const std::vector<Node> all = tree();
        const QRectF window(0, 0, stage.window().width(), stage.window().height());
        for (const QQuickItem* text : stage.items("QQuickText")) {
            const QPointF middle = text->mapToScene({text->width() / 2, text->height() / 2});
            QString told;
            for (Node const node : all) {
                const int height = stage.window().mapToGlobal(middle.toPoint()).y();
                if (node->rect().top() <= height && height <= node->rect().bottom()) {
                    told += ' ' + node->text(QAccessible::Name) + ' ' + node->text(QAccessible::Description) + ' ' +
                            node->text(QAccessible::Value);
                }
            }
            const QString written = text->property("text").toString();
            const QString drawn =
                Qt::mightBeRichText(written) ? QTextDocumentFragment::fromHtml(written).toPlainText() : written;
            const bool isPlaceholder = text->parentItem()->inherits("QQuickTextInput");
            for (auto found = word.globalMatch(drawn); !isPlaceholder && window.contains(middle) && found.hasNext();) {
                const QString each = found.next().captured();
                EXPECT_TRUE(told.contains(each, Qt::CaseInsensitive))
                    << scene << ": " << each.toStdString() << " of “" << drawn.toStdString() << "” is not told in"
                    << told.toStdString();
            }
        }
    }
    /// Under the pseudo-language: outside of its brackets stand only words that a console sent, numbers and dates.
    void expectTranslated(const std::string& scene, const QString& sent) const
    {
        static const QRegularExpression ours("\\{[^{}]*\\}");
        static const QRegularExpression word("[A-Za-z]{2,}");
        QStringList shown;
        for (const QQuickItem* text : stage.items("QQuickText")) {
            shown.append(text->property("text").toString());
        }
        for (Node const node : tree()) {
            shown.append(node->text(QAccessible::Name));
        }
        for (QString text : shown) {
            const QString whole = text;
            while (text.contains(ours)) {
                text.replace(ours, QStringLiteral(" ")); // the comma between a console's words is ours
            }
            for (auto found = word.globalMatch(text); found.hasNext();) {
                const QString left = found.next().captured();
                EXPECT_TRUE(sent.contains(left)) << scene + ": " << left.toStdString() << " in " << whole.toStdString();
            }
        }
    }
    static bool isPressed(Node node) { return actionsOf(node).contains(QAccessibleActionInterface::pressAction()); }
    int depth() const { return stage.list().navigationController()->depth(); }
};

TEST_F(ReaderTest, WhatIsUnderALayerIsNeitherReadNorPressed)
{
    stage.show({390, 844}, fleet());
    MenuOutlet* alert = nullptr;
    const struct {
        const char* name;
        std::function<void()> open;
        std::string below;  ///< a button of the screen that is covered
        std::string inside; ///< a control of the layer
        std::string close;
        QAccessible::Role role = QAccessible::Dialog;
    } layers[] = {
        {"tour", [&] { IntroView::showIntroViewInView(stage.tabs(), {}); }, "Settings", "Page 1 of 6", "Skip"},
        {"sheet", [&] { act("Add console"); }, "Add console", "Password", "Cancel"},
        {"feedback", [&] { stage.feedback().present(grabCovered(stage.window())); }, "Settings", "Pen", "Cancel"},
        {"alert",
         [&] {
             act("Settings");
             alert = qobject_cast<SettingsViewController*>(top())->alert();
             alert->present("Password Saved", {}, {{"Continue"}}, 0, {});
         },
         "Dashboard", "Continue", "Continue", QAccessible::AlertMessage},
        {"passcode sheet", [&] { act("Require Passcode"); }, "Back", "New passcode", "Cancel"},
        {"action sheet",
         [&] {
             stage.openList(Scenes::managedSystemsView, demoConsole());
             act(nameOf(find("Managed Systems")->child(2)));
         },
         "Back", "System Information", "Cancel", QAccessible::PopupMenu},
    };
    for (const auto& layer : layers) {
        SCOPED_TRACE(layer.name);
        Node const held = find(layer.below);
        ASSERT_NE(held, nullptr);
        layer.open();
        ASSERT_TRUE(waitFor(layer.inside));
        Node const window = QAccessible::queryAccessibleInterface(&stage.window());
        ASSERT_EQ(window->childCount(), 1);
        EXPECT_TRUE(window->child(0)->state().modal);
        EXPECT_EQ(window->child(0)->role(), layer.role);
        EXPECT_FALSE(nameOf(window->child(0)).empty());
        EXPECT_EQ(find(layer.below), nullptr);
        // Whoever kept it from before.
        const int before = depth();
        held->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(depth(), before);
        EXPECT_EQ(stage.tabs().selectedIndex(), 0);
        act(layer.close);
        EXPECT_TRUE(waitFor(layer.below)) << "it did not close";
    }
}

TEST_F(ReaderTest, EveryKindOfControlDoesWhatAPressDoes)
{
    stage.show({390, 844}, fleet());
    act("Settings");
    ASSERT_TRUE(waitFor("Require Passcode"));
    EXPECT_TRUE(find("Change Passcode")->state().disabled);
    act("Require Passcode");
    act("Verify passcode", QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(find("Verify passcode")->state().passwordEdit && find("Verify passcode")->state().focused);
    act("Cancel");
    ASSERT_TRUE(waitFor("Require Passcode"));
    EXPECT_FALSE(find("Require Passcode")->state().checked);
    act("Ornis License");
    ASSERT_EQ(depth(), 3);
    act("Corvels"); // the tab that is shown
    ASSERT_EQ(depth(), 1);
    ASSERT_TRUE(waitFor("Settings"));
    EXPECT_TRUE(find("Corvels")->state().selected);
    act("Dashboard");
    EXPECT_EQ(stage.tabs().selectedIndex(), 1);
    act("Corvels");

    IntroView::showIntroViewInView(stage.tabs(), {});
    act("Page 1 of 6", QAccessibleActionInterface::decreaseAction());
    act("Page 1 of 6", QAccessibleActionInterface::increaseAction());
    act("Page 2 of 6", QAccessibleActionInterface::increaseAction());
    EXPECT_TRUE(waitFor("Page 3 of 6"));
    act("Skip");

    // A row that cannot be opened can be edited and deleted.
    const std::string offline = "Northfield Recovery Site, Offline, attention 0, events 0";
    EXPECT_FALSE(isPressed(find(offline)));
    act(offline, "Edit");
    act("Cancel");
    act(offline, "Delete");
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList().size(), 5U);
    RESTHandler::sharedInstance().corvelList().at(1)->setRestData(demoConsole()->restData());
    for (const bool back : {true, false}) {
        act("Harbour B, Error, attention 2, events 14");
        EXPECT_EQ(depth(), 2);
        act(back ? "Back" : "Managed Systems, 10");
        EXPECT_EQ(depth(), back ? 1 : 3);
    }

    EXPECT_TRUE(waitForText("12 Mar 2026, 09:41"));
    act("Search");
    type("nothing at all");
    act("Clear");
    EXPECT_TRUE(dynamic_cast<FeedListViewController&>(*top()).searchBar()->text().isEmpty());
    act("Cancel");
    act("helios-04, incomplete, error, attention LED on");
    act("System Information");
    EXPECT_EQ(depth(), 4);
    EXPECT_TRUE(waitFor("Reference Code, C702-11F4"));

    auto& performance = *stage.open<PCMViewController>(
        Scenes::pcmDataView, {.corvel = demoConsole(), .sysName = "helios-01", .systemID = "any"});
    act("Memory");
    EXPECT_EQ(performance.typeSegmentedControl()->selectedSegmentIndex(), 1);
    EXPECT_TRUE(find("Memory")->state().selected);
    EXPECT_FALSE(find("Processors")->state().selected);

    stage.feedback().present(grabCovered(stage.window()));
    act("Cover");
    EXPECT_TRUE(find("Cover")->state().checked);

    stage.show({390, 844}, {});
    act("Add Corvel");
    EXPECT_NE(stage.list().semiModal(), nullptr);
}

TEST_F(ReaderTest, EverySceneReadsFromItsTitleDownNamesEveryControlAndIsTranslated)
{
    const PseudoLanguage language;
    // Unit, mark and placeholder are the same in every language; the month stands in a date.
    QString sent = "MB (null) demo placeholder Mar ";
    sent += "name,address,user oversight Millpond monitor fleet.csv "; // an example and a file
    sent += AnyInput::sheet;
    for (const FeedKind& kind : feedTable) {
        sent += QString::fromStdString(feedOfType(*demoConsole(), kind.type).root().text().value());
    }
    for (const ConsoleLook& console : fleet()) {
        sent += QString::fromStdString(console.name + ' ' + console.address + ' ' + console.version + ' ');
    }
    const auto look = [&](const std::string& scene) {
        expectReadable(scene);
        expectAllIsTold(scene);
        // Documents are shown as they are shipped.
        if (stage.items("ReadingPage").empty()) {
            expectTranslated(scene, sent);
        }
    };
    std::vector<ConsoleLook> consoles = fleet();
    consoles[2].state = ConsoleLook::State::Offline;
    stage.show({390, 844}, consoles);
    look("console list");
    stage.showDashboard();
    ASSERT_TRUE(stage.waitFor([this] { return stage.items("PieChart").size() == 2; }));
    look("dashboard");
    stage.show({1280, 800}, {});
    for (const AnyScene& scene : everyScene(demoConsole())) {
        stage.list().navigationController()->pushViewController(scene.make(), Animated::No);
        ASSERT_TRUE(stage.waitFor([this] { return stage.items("Spinner").empty(); })) << scene.name;
        stage.settle(200);
        look(scene.name);
        stage.list().navigationController()->popViewController(Animated::No);
    }
}

TEST_F(ReaderTest, AReaderThatGoesFromRowToRowComesToTheEndOfALongList)
{
    std::vector<ConsoleLook> consoles(60, fleet().front());
    for (std::size_t index = 0; index < consoles.size(); ++index) {
        consoles[index].name = "Harbour " + std::to_string(index);
    }
    stage.show({390, 844}, consoles);
    const std::vector<Node> all = tree();
    const auto isList = [](Node node) { return node->role() == QAccessible::List; };
    Node const list = *std::find_if(all.begin(), all.end(), isList);
    const struct {
        int direction;
        int pause; ///< ms; at 0 the next row is asked for before any event is handled
    } walks[] = {{1, 0}, {-1, 0}, {1, 20}, {-1, 20}};
    for (const auto& [direction, pause] : walks) {
        Node row = direction > 0 ? list->child(0) : list->child(list->childCount() - 1);
        std::size_t met = 0;
        while (row != nullptr && met < consoles.size()) {
            const ConsoleLook& expected = consoles[direction > 0 ? met : consoles.size() - 1 - met];
            EXPECT_EQ(nameOf(row).find(expected.name + ","), 0U) << nameOf(row);
            ++met;
            row->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
            EXPECT_TRUE(row->state().focused);
            if (pause > 0) {
                stage.settle(pause);
            }
            row = list->child(list->indexOfChild(row) + direction);
        }
        EXPECT_EQ(met, consoles.size());
        EXPECT_EQ(row, nullptr);
    }
}

} // namespace
} // namespace lodestar::scenes

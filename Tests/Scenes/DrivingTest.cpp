// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/Connection/ConnectionViewController.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethod>
#include <QQmlPropertyMap>

#include <cmath>

namespace lodestar::scenes
{
namespace
{

class DrivingTest : public SceneTest
{
protected:
    void showDashboard(QSize size)
    {
        stage.show(size, fleet());
        stage.showDashboard();
        EXPECT_EQ(text("Corvels Online"), nullptr);
        EXPECT_EQ(stage.items("Spinner").size(), 2U);
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            corvel->completedFetch = true;
        }
        ASSERT_TRUE(waitForText("4 / 6"));
        stage.settle();
    }
};

TEST_F(DrivingTest, AListWhoseLastRowSlidAwayDrawsTheNextConsole)
{
    Appearance::shared().overrideReducedMotion(false);
    stage.show({390, 844}, {fleet().front()});
    press(Qt::Key_Home);
    press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(waitForButton("Delete"));
    stage.settle(300);
    EXPECT_GE(button("Delete")->mapToScene({}).x(), button("Edit")->mapToScene({}).x() + 72);
    EXPECT_TRUE(button("Edit")->hasActiveFocus()); // what cannot be taken back comes second
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
    ASSERT_TRUE(waitForText("No consoles yet."));
    stage.settle();
    const QImage empty = stage.grab();

    click(button("Add Corvel"));
    ASSERT_TRUE(waitForSheet());
    // As the editor does when a console answered.
    const auto corvel = std::static_pointer_cast<Corvel>(
        StoreStack::shared().managedObjectContext().insertNewObject(Corvel::entityName));
    corvel->setName("Harbour C");
    corvel->completedFetch = true;
    RESTHandler::sharedInstance().addCorvel(corvel);
    stage.list().hideModalView();
    ASSERT_TRUE(waitForNoSheet());
    stage.settle();
    const QQuickItem* const name = text("Harbour C");
    ASSERT_NE(name, nullptr);
    const QRect place = name->mapRectToScene(name->boundingRect()).toRect();
    EXPECT_NE(stage.grab().copy(place), empty.copy(place)) << "the row is not drawn";
}

TEST_F(DrivingTest, AConsolesRowLeadsToItsConnectionByALeadingSwipeAndByItsMenu)
{
    stage.show({390, 844}, fleet());
    const auto isOpen = [this] { return qobject_cast<ConnectionViewController*>(top()) != nullptr; };
    const auto goBack = [this] {
        top()->goBack();
        return stage.waitFor([this] { return top() == &stage.list() && text("My Corvels") != nullptr; });
    };
    const std::vector<CorvelRef> consoles = RESTHandler::sharedInstance().corvelList();
    const QPoint place = centerOf(row(1));
    pull(place, 100);
    letGo(place + QPoint(100, 0));
    ASSERT_TRUE(waitForButton("Connection"));
    stage.settle(300);
    EXPECT_EQ(button("Connection")->width(), 72);
    EXPECT_EQ(button("Delete"), nullptr);
    click(button("Connection"));
    ASSERT_TRUE(stage.waitFor(isOpen));
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList(), consoles) << "the list's rule would have deleted index 0";
    EXPECT_TRUE(waitForText("Not tried yet"));
    EXPECT_TRUE(waitForText("Harbour B"));
    ASSERT_TRUE(goBack());

    press(Qt::Key_Home);
    press(Qt::Key_Menu);
    ASSERT_TRUE(waitForButton("Copy Address"));
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([this] { return button("Copy Address") == nullptr; }));
    QTest::mouseClick(&stage.window(), Qt::RightButton, {}, place);
    ASSERT_TRUE(waitForButton("Copy Address"));
    stage.settle(300);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor(isOpen));
    EXPECT_EQ(qobject_cast<ConnectionViewController*>(top())->corvel(), consoles[1]);
    ASSERT_TRUE(goBack());
    ASSERT_TRUE(stage.waitFor([this] { return button("Copy Address") == nullptr; }));
    stage.settle();
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, place);
    ASSERT_TRUE(waitForButton("Copy Address"));
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, place);
    stage.settle(300);
    EXPECT_NE(button("Copy Address"), nullptr) << "letting go closes nothing";
    QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(stage.waitFor([this] { return button("Copy Address") == nullptr; })) << "a press beside it does";
    EXPECT_EQ(top(), &stage.list());
}

TEST_F(DrivingTest, TabGoesFromTheBarToTheRowsAndOnToTheRailAndKeysRefresh)
{
    stage.show({1280, 800}, fleet());
    press(Qt::Key_Home);
    QStringList met;
    while (met.size() < 11 && (met.empty() || met.last() != "row")) {
        press(Qt::Key_Tab);
        const QQuickItem* const now = stage.window().activeFocusItem();
        met << (row(0) == now ? QStringLiteral("row") : now->property("text").toString());
    }
    met.removeAll("Feedback"); // not where a shake asks for it
    EXPECT_EQ(met.join(", ").toStdString(),
              "Fleet Sheet, Corvels, Dashboard, Attention, Save list as CSV, Find anywhere, Settings, Add console, "
              "row");

    stage.show({390, 844}, {});
    int pulls = 0;
    QObject::connect(stage.list().refreshControl(), &RefreshControl::valueChanged, [&pulls] { ++pulls; });
    press(Qt::Key_R, Qt::ControlModifier);
    press(Qt::Key_F5);
    EXPECT_EQ(pulls, 2);
}

TEST_F(DrivingTest, TheFormIsFilledByKeyboardAndItsMessageIsSeenThoughTheKeyboardIsSlow)
{
    stage.show({390, 844}, fleet());
    click(stage.item("addButton"));
    ASSERT_TRUE(waitForSheet());
    const SemiModalPresentation* const sheet = stage.list().semiModal();
    auto* const form = qobject_cast<DeltaCorvelViewController*>(sheet->controller());
    // It stays in sight for a moment after it was told to go.
    QQmlPropertyMap slow;
    const auto cover = [&](double height) {
        slow.insert(QStringLiteral("keyboardRectangle"), QRectF(0, 844 - height, 390, height));
        slow.insert(QStringLiteral("visible"), height > 0);
    };
    cover(0);
    auto* const keyboard = stage.items("CorvelListScene").front()->property("keyboard").value<QObject*>();
    keyboard->setProperty("inputMethod", QVariant::fromValue<QObject*>(&slow));
    cover(260);
    EXPECT_EQ(sheet->height(), 224 + 260);
    // The first field has the keyboard; Return goes from field to field, and saves.
    for (const char* words : {"Harbour C", "https://harbour-c", "oversight"}) {
        type(words);
        press(Qt::Key_Return);
        EXPECT_EQ(sheet->height(), 224 + 260);
    }
    EXPECT_EQ(form->nameField()->text(), "Harbour C");
    EXPECT_EQ(form->usernameField()->text(), "oversight");
    EXPECT_NE(text("Leave out \"https://\"."), nullptr);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForText("Please enter all fields"));
    EXPECT_FALSE(form->nameField()->isEnabled());
    EXPECT_EQ(sheet->height(), 266);
    cover(120);
    EXPECT_EQ(sheet->height(), 266);
    cover(0);
    EXPECT_EQ(sheet->height(), 266);
    EXPECT_TRUE(stage.waitFor([&] { return sheet->height() == 223 && form->nameField()->isEnabled(); }));
    keyboard->setProperty("inputMethod", QVariant::fromValue<QObject*>(QGuiApplication::inputMethod()));

    // A tap beside the fields ends editing.
    QQuickItem* const fields = stage.items("Form").front();
    stage.items("QQuickTextField").front()->forceActiveFocus();
    type("!");
    fields->setProperty("contentY", fields->property("contentHeight").toDouble() - fields->height());
    const QPointF foot(fields->width() / 2, fields->height() - 8);
    QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, fields->mapToScene(foot).toPoint());
    type("xyz");
    EXPECT_EQ(form->nameField()->text(), "Harbour C!");

    // Two lines take their room above the form.
    form->showStatusWithMessage("verifying...");
    form->showStatusWithError(QStringLiteral("The console gave an answer that was not expected at all. ").repeated(2));
    stage.settle(300);
    const QQuickItem* const line = stage.items("StatusLine").front();
    EXPECT_EQ(fields->property("contentY").toDouble(), 0);
    EXPECT_LE(line->mapRectToItem(fields, line->boundingRect()).bottom(), fields->height());
    press(Qt::Key_Escape);
    EXPECT_EQ(stage.list().semiModal(), nullptr) << "the sheet still has the keyboard";
    EXPECT_TRUE(waitForNoSheet());
}

TEST_F(DrivingTest, AFieldsMenuPastesAndASecretIsShownOnDemandAloneAndNeverCopied)
{
    stage.show({390, 844}, fleet());
    DeltaCorvelViewController* const form = stage.openEditor();
    ASSERT_TRUE(waitForSheet());
    const std::vector<QQuickItem*> fields = stage.items("QQuickTextField");
    ASSERT_EQ(fields.size(), 4U);
    QGuiApplication::clipboard()->setText(QStringLiteral("harbour-c.example"));
    QTest::mouseClick(&stage.window(), Qt::RightButton, {}, centerOf(fields[1]));
    ASSERT_TRUE(waitForButton("Paste"));
    EXPECT_EQ(button("Copy"), nullptr) << "nothing is selected";
    stage.settle(100);
    click(button("Paste"));
    EXPECT_EQ(form->addressField()->text(), "harbour-c.example");

    form->passwordField()->setText("twelve-chars");
    fields[3]->forceActiveFocus();
    QMetaObject::invokeMethod(fields[3], "selectAll");
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, centerOf(fields[3]));
    ASSERT_TRUE(waitForButton("Select All"));
    letGo(centerOf(fields[3]));
    EXPECT_EQ(button("Cut"), nullptr);
    EXPECT_EQ(button("Copy"), nullptr);
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return button("Select All") == nullptr; }));

    QAccessible::setActive(true);
    const auto shown = [&] { return fields[3]->property("displayText").toString() == QLatin1String("twelve-chars"); };
    EXPECT_FALSE(shown());
    click(button("Show password"));
    stage.settle(50);
    EXPECT_TRUE(shown());
    fields[3]->forceActiveFocus();
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_X}) {
        press(key, Qt::ControlModifier);
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "harbour-c.example");
    EXPECT_TRUE(shown());
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(fields[3])->text(QAccessible::Value).contains(u"twelve"));
    fields[0]->forceActiveFocus();
    EXPECT_TRUE(stage.waitFor([&] { return !shown(); }));
}

TEST_F(DrivingTest, AWideWindowsChoicesComeUpByThePress)
{
    stage.show({900, 800}, fleet());
    stage.openList(Scenes::managedSystemsView, demoConsole());
    const QPoint at = centerOf(row(1));
    click(row(1));
    ASSERT_TRUE(waitForButton("System Information"));
    stage.settle(300);
    const auto expectBeside = [&](const char* asked) {
        const QQuickItem* const choice = button("System Information");
        const QRectF first = choice->mapRectToScene(choice->boundingRect());
        EXPECT_LT(std::abs(first.top() - at.y()), 80) << asked;
        EXPECT_TRUE(first.left() < at.x() && at.x() < first.right()) << asked;
    };
    expectBeside("by the pointer");
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([this] { return button("System Information") == nullptr; }));
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForButton("System Information"));
    stage.settle(300);
    expectBeside("by a key, beside its row");
}

TEST_F(DrivingTest, TheDashboardLoadsAndReadsFromTheSideWhereReadingBegins)
{
    const auto left = [this](const char* words) { return text(words)->mapToScene({}).x(); };
    for (const bool mirrored : {false, true}) {
        Appearance::shared().overrideMirrored(mirrored);
        showDashboard({768, 1024});
        EXPECT_TRUE(stage.items("Spinner").empty());
        EXPECT_EQ(left("Corvels Online") > left("Attention LEDs"), mirrored);
        EXPECT_EQ(left("Attention LEDs") > left("Serviceable Events"), mirrored);
        EXPECT_EQ(left("Managed Systems") > left("Logical Partitions"), mirrored);
    }
    showDashboard({390, 844});
    EXPECT_DOUBLE_EQ(stage.items("PieChart").at(0)->height(), 390 / 1.2);
    stage.show({768, 1024}, {});
    stage.showDashboard();
    EXPECT_TRUE(waitForText("No consoles yet."));
}

} // namespace
} // namespace lodestar::scenes

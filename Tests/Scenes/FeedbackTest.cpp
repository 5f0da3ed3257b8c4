// SPDX-License-Identifier: Apache-2.0
#include "Feedback/UI/FeedbackViewController.h"
#include "Feedback/UI/ReportViewController.h"
#include "Feedback/UI/ScreenGrabber.h"
#include "Tests/Scenes/SceneTest.h"

#include <QFile>

namespace lodestar::scenes
{
namespace
{

/// Nothing but the cover's two greys and what lies between them.
bool isCovered(const QImage& picture, const QQuickItem* item)
{
    const double scale = picture.devicePixelRatio();
    const QRectF place = item->mapRectToScene(QRectF(0, 0, item->property("contentWidth").toDouble(), item->height()));
    const QRect pixels = QRectF(place.topLeft() * scale, place.size() * scale).toRect().adjusted(1, 1, -1, -1);
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            if (color.red() < 0x52 || color.red() > 0x78 || color.blue() < 0x69 || color.blue() > 0x8F) {
                return false;
            }
        }
    }
    return !pixels.isEmpty();
}

class FeedbackTest : public SceneTest
{
protected:
    FeedbackTest() { stage.show({390, 844}, fleet()); }
    FeedbackViewController* open()
    {
        stage.feedback().present(grabCovered(stage.window()));
        EXPECT_TRUE(stage.waitFor([this] { return stage.item("noteField") != nullptr; }));
        return screen();
    }
    FeedbackViewController* screen() const
    {
        auto* const stack = qobject_cast<NavigationController*>(stage.feedback().screen());
        return stack == nullptr ? nullptr : qobject_cast<FeedbackViewController*>(stack->rootViewController());
    }
    /// Draws with the chosen tool between two places of the picture, told in parts of its size.
    void draw(QPointF from, QPointF to) const
    {
        const QQuickItem* view = stage.item("sketchView");
        const auto at = [view](QPointF part) {
            return view->mapToScene({part.x() * view->width(), part.y() * view->height()}).toPoint();
        };
        QTest::mousePress(&stage.window(), Qt::LeftButton, {}, at(from));
        QTest::mouseMove(&stage.window(), at((from + to) / 2));
        QTest::mouseMove(&stage.window(), at(to));
        QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, at(to));
    }
    static QColor colorAt(const QImage& picture, QPointF part)
    {
        return picture.pixelColor(int(part.x() * picture.width()), int(part.y() * picture.height()));
    }
};

TEST_F(FeedbackTest, AddressesAndSecretFieldsAreCoveredAndTheScreenIsLeftAsItWas)
{
    stage.settle();
    const QImage before = stage.grab();
    const QImage picture = grabCovered(stage.window());
    for (const ConsoleLook& console : fleet()) {
        const QQuickItem* address = text(QString::fromStdString(console.address));
        ASSERT_NE(address, nullptr);
        EXPECT_FALSE(isCovered(before, address));
        EXPECT_TRUE(isCovered(picture, address)) << console.address;
        EXPECT_FALSE(isCovered(picture, text(QString::fromStdString(console.name))));
    }
    EXPECT_EQ(stage.grab(), before);

    auto* const editor = stage.openEditor();
    ASSERT_TRUE(waitForSheet());
    editor->addressField()->setText("corvel-x.example");
    editor->usernameField()->setText("overseer");
    editor->passwordField()->setText("a");
    stage.settle();
    const QImage sheet = grabCovered(stage.window());
    int covered = 0;
    for (const QQuickItem* field : stage.items("QQuickTextField")) {
        covered += isCovered(sheet, field) ? 1 : 0;
    }
    EXPECT_EQ(covered, 3) << "address, user and password, and not the name";
}

TEST_F(FeedbackTest, DrawingsAreUndoneAndKeptWithTheNoteButWithoutPasswords)
{
    FeedbackViewController* feedback = open();
    EXPECT_EQ(button("Undo")->isEnabled(), false);
    draw({0.2, 0.8}, {0.8, 0.8});
    EXPECT_EQ(colorAt(feedback->sketch()->composed(), {0.5, 0.8}), Sketch::colors().at(0));
    click(button("Blue"));
    draw({0.2, 0.85}, {0.8, 0.85});
    EXPECT_EQ(colorAt(feedback->sketch()->composed(), {0.5, 0.85}), Sketch::colors().at(3));
    click(stage.item("undoTool"));
    EXPECT_NE(colorAt(feedback->sketch()->composed(), {0.5, 0.85}), Sketch::colors().at(3));
    // Up and down is a stroke, too, and no scrolling.
    draw({0.3, 0.2}, {0.3, 0.9});
    EXPECT_EQ(colorAt(feedback->sketch()->composed(), {0.3, 0.5}), Sketch::colors().at(3));
    click(stage.item("coverTool"));
    draw({0.1, 0.7}, {0.9, 0.9});
    const QColor hidden = colorAt(feedback->sketch()->composed(), {0.5, 0.8});
    EXPECT_LT(hidden.red() - hidden.blue(), 0) << "no red shows through";

    click(stage.item("noteField"));
    type("My password is twelve-chars");
    click(stage.item("submitButton"));
    ASSERT_TRUE(waitForButton("OK"));
    click(button("OK"));
    EXPECT_TRUE(stage.waitFor([this] { return stage.feedback().screen() == nullptr; }));
    const std::vector<Report> reports = stage.reports().list();
    ASSERT_EQ(reports.size(), 1U);
    const ReportBundle report = stage.reports().read(reports.front().identifier).value();
    EXPECT_EQ(report.note, "My password is [removed]");
    EXPECT_EQ(report.version, "1.0.0");
    const QImage kept = QImage::fromData(QByteArray::fromStdString(report.picture));
    EXPECT_EQ(colorAt(kept, {0.5, 0.8}), hidden);
    EXPECT_TRUE(stage.waitFor([this] { return stage.item("noteField") == nullptr; }));
    EXPECT_NE(stage.window().activeFocusItem(), nullptr);
}

TEST_F(FeedbackTest, ReportsAreReadExportedAndDeletedWithTheKeyboardAlone)
{
    ReportBundle bundle;
    bundle.note = "It stood still";
    bundle.log = "a line of the log\n";
    ASSERT_TRUE(stage.reports().save(bundle).ok());
    open();
    stage.item("reportsRow")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForButton("Feedback: It stood still"));
    button("Feedback: It stood still")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForText("a line of the log"));
    stage.settle();
    stage.item("exportButton")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForButton("OK"));
    press(Qt::Key_Return); // while it still fades in
    EXPECT_TRUE(stage.waitFor([this] { return button("OK") == nullptr; }));
    stage.item("deleteButton")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor([this] { return button("Cancel") != nullptr && button("Delete") != nullptr; }));
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_TRUE(stage.waitFor([this] { return stage.reports().list().empty(); }));
    EXPECT_TRUE(waitForText("No reports on this device."));
}

TEST_F(FeedbackTest, ACrashReportIsReadAndSentAsOftenAsItFailsAndThenTheNextIsAskedAbout)
{
    FeedbackSetup setup;
    setup.store = stage.reports();
    setup.crashFolder = stage.reports().folder() + "/../Crashes";
    setup.address = "https://127.0.0.1:9/reports"; // nobody listens there
    stage.feedback().setUp(setup);
    for (const char* what : {"the first crash", "the second crash"}) {
        ReportBundle crash;
        crash.kind = Report::Kind::Crash;
        crash.note = what;
        ASSERT_TRUE(stage.reports().save(crash).ok());
    }
    stage.feedback().offerCrashes();
    for (std::size_t left = 2; left > 0; --left) {
        ASSERT_TRUE(stage.waitFor([this] { return button("Keep") != nullptr && button("Send") != nullptr; })) << left;
        stage.settle(200); // its buttons find their places with the first frame
        EXPECT_TRUE(button("Keep")->hasActiveFocus()) << "what costs nothing";
        ASSERT_EQ(stage.reports().unanswered().size(), left);
        const QString what = QString::fromStdString(stage.reports().unanswered().front().note);
        stage.feedback().alert()->choose(0);
        auto* const stack = qobject_cast<NavigationController*>(stage.feedback().screen());
        ASSERT_NE(stack, nullptr);
        ASSERT_TRUE(waitForText(what)) << left << what.toStdString();
        auto& report = dynamic_cast<ReportViewController&>(*stack->topViewController());
        EXPECT_EQ(report.actionTitle(), "Send");
        click(stage.item("actionButton"));
        ASSERT_TRUE(waitForButton("Try Again"));
        report.alert()->choose(1);
        EXPECT_EQ(report.alert()->title(), "Sending the report...") << "tried again";
        EXPECT_EQ(report.alert()->message(), "0 %");
        ASSERT_TRUE(stage.waitFor([&] { return report.alert()->title() == "The report could not be sent"; }));
        ASSERT_TRUE(waitForButton("Try Again"));
        click(button("OK"));
        EXPECT_TRUE(stage.waitFor([this] { return stage.feedback().screen() == nullptr; }));
    }
    EXPECT_FALSE(stage.feedback().alert()->isPresented());
    EXPECT_EQ(stage.reports().list().size(), 2U) << "kept, since they were not sent";
}

TEST_F(FeedbackTest, WhatCannotBeKeptStaysOnScreenAndNothingIsLeftUnasked)
{
    QFile inTheWay(QString::fromStdString(stage.reports().folder()));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    FeedbackViewController* feedback = open();
    click(stage.item("noteField"));
    type("kept");
    click(stage.item("submitButton"));
    ASSERT_TRUE(stage.waitFor([&] { return feedback->alert()->isPresented(); }));
    EXPECT_EQ(feedback->alert()->title(), "The report could not be saved");
    feedback->alert()->choose(0);
    EXPECT_EQ(screen(), feedback);
    EXPECT_EQ(feedback->noteView()->text(), "kept");
    inTheWay.remove();

    feedback->cancel();
    feedback->alert()->choose(0);
    EXPECT_EQ(screen(), feedback);
    feedback->cancel();
    feedback->alert()->choose(1);
    EXPECT_EQ(screen(), nullptr);
}

TEST_F(FeedbackTest, NothingFromBehindTheLockIsShownWhileItIsUp)
{
    open()->noteView()->setText("begun before");
    ReportBundle crash;
    crash.kind = Report::Kind::Crash;
    ASSERT_TRUE(stage.reports().save(crash).ok());
    stage.feedback().setLocked(true);
    EXPECT_EQ(stage.feedback().screen(), nullptr);
    stage.feedback().offerCrashes();
    stage.settle(200);
    EXPECT_FALSE(stage.feedback().alert()->isPresented());
    EXPECT_TRUE(stage.waitFor([this] { return stage.item("noteField") == nullptr; }));

    FeedbackViewController* locked = open();
    EXPECT_EQ(stage.item("reportsRow"), nullptr);
    locked->showReports();
    EXPECT_EQ(qobject_cast<NavigationController*>(stage.feedback().screen())->depth(), 1);
    locked->cancel();
    EXPECT_EQ(stage.feedback().screen(), nullptr);

    stage.feedback().setLocked(false);
    ASSERT_NE(screen(), nullptr);
    EXPECT_EQ(screen()->noteView()->text(), "begun before");
    ASSERT_TRUE(stage.waitFor([this] { return stage.feedback().alert()->isPresented(); }));
    stage.feedback().alert()->choose(1);
    EXPECT_TRUE(stage.reports().list().empty());
}

} // namespace
} // namespace lodestar::scenes

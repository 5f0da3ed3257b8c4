// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTHandler.h"
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/Toasts.h"
#include "Kit/Core/WindowDialogs.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/About/RichDocumentViewController.h"
#include "Views/Common/DetailViewController.h"
#include "Views/Report/ServiceReportController.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lodestar::scenes
{
namespace
{

class CopyTest : public SceneTest
{
protected:
    static QString copied() { return QGuiApplication::clipboard()->text(); }
    DetailViewController& openEvent(QSize size)
    {
        stage.show(size, fleet());
        const CorvelRef corvel = demoConsole();
        RESTHandler::sharedInstance().addCorvel(corvel);
        const XMLElement entry = feedOfType(*corvel, ObjectType::ServiceableEvent).entries().front();
        auto* const details = stage.open<DetailViewController>(Scenes::serviceableEventsDetail,
                                                               contentOf(entry, ObjectType::ServiceableEvent));
        EXPECT_TRUE(waitForText("X417-2208"));
        stage.settle();
        return *details;
    }
    bool waitForNo(const char* words) const
    {
        return stage.waitFor([&] { return button(words) == nullptr; });
    }
};

TEST_F(CopyTest, ADetailRowIsCopiedByFingerMouseAndKeys)
{
    openEvent({390, 844});
    // The row cannot be pressed, but it is held.
    const QPoint code = centerOf(row(5));
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, code);
    ASSERT_TRUE(waitForButton("Copy Value"));
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, code);
    stage.settle(300);
    EXPECT_NE(text("Reference Code"), nullptr);
    EXPECT_NE(button("Find on All Consoles"), nullptr);
    click(button("Copy Value"));
    EXPECT_EQ(copied(), "X417-2208");
    EXPECT_EQ(Toasts::shared().text(), "Copied X417-2208");
    ASSERT_TRUE(waitForNo("Copy Value"));

    QTest::mouseClick(&stage.window(), Qt::RightButton, {}, code);
    ASSERT_TRUE(waitForButton("Copy All"));
    stage.settle(300);
    click(button("Copy All"));
    EXPECT_TRUE(copied().contains("\nReference Code: X417-2208\n"));
    ASSERT_TRUE(waitForNo("Copy All"));

    press(Qt::Key_Home);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), "1042");
    press(Qt::Key_Down);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), "true");
    press(Qt::Key_Menu);
    ASSERT_TRUE(waitForButton("Copy Value"));
    EXPECT_NE(text("Call Home Intended"), nullptr);
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitForNo("Copy Value"));
}

TEST_F(CopyTest, TheReportIsReadChangedAndHandedOnByTheSheet)
{
    DetailViewController& details = openEvent({390, 844});
    click(button("Service report"));
    ASSERT_TRUE(waitForSheet());
    const auto* const report = qobject_cast<ServiceReportController*>(details.semiModal()->controller());
    EXPECT_NE(text("Serviceable event #1042"), nullptr);
    const QString first = report->text();
    click(stage.items(QStringLiteral("Switch")).at(0));
    EXPECT_NE(report->text(), first);
    click(button("Markdown"));
    EXPECT_TRUE(report->isMarkdown());
    EXPECT_TRUE(waitForText(report->text())) << "the exact text is shown";

    // A file that cannot be written is told over everything, and the window stays usable.
    FileSaver::answerWith([](const QString&) { return QStringLiteral("/nowhere/event.md"); });
    click(button("Save as File"));
    FileSaver::answerWith({});
    ASSERT_TRUE(waitForText("Could not be saved: the folder does not exist."));
    stage.settle(300);
    press(Qt::Key_Return);
    ASSERT_TRUE(stage.waitFor([] { return !WindowDialogs::shared().alert().isPresented(); }));
    stage.settle(300);
    EXPECT_NE(details.semiModal(), nullptr) << "the report may be saved elsewhere";
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitForNoSheet());

    click(button("Service report"));
    ASSERT_TRUE(waitForSheet());
    click(button("Copy"));
    EXPECT_EQ(copied(), first) << "each report begins as text without addresses";
    EXPECT_TRUE(waitForNoSheet());
    EXPECT_EQ(details.semiModal(), nullptr);
}

TEST_F(CopyTest, LegalTextsAreSelectedByPiecesAndCopied)
{
    stage.show({390, 844}, fleet());
    auto& agreement = *stage.open<RichDocumentViewController>(Scenes::OrnisLicenseViewController, {});
    const auto& paragraphs = agreement.webview()->paragraphs();
    ASSERT_TRUE(stage.waitFor([&] { return paragraphs.size() > 3 && stage.items("QQuickText").size() > 3; }));
    stage.settle();
    press(Qt::Key_C, Qt::ControlModifier);
    const QPoint place(195, 150);
    QTest::mouseClick(&stage.window(), Qt::RightButton, {}, place);
    ASSERT_TRUE(waitForButton("Copy"));
    stage.settle(300);
    click(button("Copy"));
    const QString one = copied();
    EXPECT_TRUE(std::ranges::any_of(paragraphs, [&](const RichParagraph& each) { return each.text == one; }))
        << one.toStdString();
    ASSERT_TRUE(waitForNo("Copy All"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(copied().contains(one) && copied().size() > 2 * one.size());
    EXPECT_EQ(Toasts::shared().text(), "Copied Ornis License");
}

} // namespace
} // namespace lodestar::scenes

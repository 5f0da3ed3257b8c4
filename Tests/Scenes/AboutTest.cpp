// SPDX-License-Identifier: Apache-2.0
#include "Application/IntroView.h"
#include "Platform/UserDefaults.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/About/OpenSourceViewController.h"
#include "Views/About/RichDocumentViewController.h"

namespace lodestar::scenes
{
namespace
{

class CountingDelegate : public PagedIntroDelegate
{
public:
    void introDidFinish() override { ++finished; }
    int finished = 0;
};

class AboutTest : public SceneTest
{
protected:
    void showTour(QSize size = {390, 844})
    {
        stage.show(size, fleet());
        IntroView::showIntroViewInView(stage.tabs(), delegate);
        ASSERT_TRUE(stage.waitFor([&] { return skip() != nullptr && skip()->mapToScene({}).x() > 0; }));
        stage.settle();
    }
    QQuickItem* skip() const { return stage.item(QStringLiteral("introSkipButton")); }
    PagedIntro& intro() const { return *stage.tabs().intro(); }
    int page() const { return intro().pageControl()->currentPage(); }
    bool waitForPage(int number) const
    {
        return stage.waitFor([&] { return page() == number; });
    }
    bool waitForEnd() const
    {
        return stage.waitFor([&] { return !intro().isPresented() && skip() == nullptr; });
    }
    void drag(QPoint by) const
    {
        const QPoint from(195, 400);
        QTest::mousePress(&stage.window(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 8; ++step) {
            QTest::mouseMove(&stage.window(), from + by * step / 8, 12);
        }
        QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, from + by, 60);
    }

    std::shared_ptr<CountingDelegate> delegate = std::make_shared<CountingDelegate>();
};

TEST_F(AboutTest, TheTourOfTheFirstUseIsTurnedByKeysAndNotShownAgain)
{
    UserDefaults::standard().setBool(false, "showedPreview");
    stage.show({390, 844}, fleet());
    ASSERT_NE(stage.tabs().intro(), nullptr);
    ASSERT_TRUE(stage.waitFor([&] { return skip() != nullptr; }));
    EXPECT_EQ(intro().pages().size(), 6U);
    stage.settle();
    // What lies behind gets no key.
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(stage.list().semiModal(), nullptr);

    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Space, Qt::Key_Return, Qt::Key_PageDown}) {
        press(key);
    }
    ASSERT_TRUE(waitForPage(4));
    press(Qt::Key_Left);
    press(Qt::Key_PageUp);
    EXPECT_TRUE(waitForPage(2));
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_TRUE(waitForPage(0));
    EXPECT_EQ(skip()->property("text"), "Skip");
    press(Qt::Key_End);
    ASSERT_TRUE(waitForPage(5));
    EXPECT_EQ(skip()->property("text"), "Done");
    EXPECT_FALSE(UserDefaults::standard().boolForKey("showedPreview"));
    press(Qt::Key_Right);
    EXPECT_TRUE(waitForEnd());
    EXPECT_TRUE(UserDefaults::standard().boolForKey("showedPreview"));
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_NE(stage.list().semiModal(), nullptr) << "the keyboard is back";

    stage.show({390, 844}, fleet());
    EXPECT_EQ(stage.tabs().intro(), nullptr);
}

TEST_F(AboutTest, SwipesAndDotsTurnPagesAndASwipePastTheLastEndsIt)
{
    showTour();
    drag({-220, 0});
    ASSERT_TRUE(waitForPage(1));
    stage.settle();
    drag({220, 0});
    ASSERT_TRUE(waitForPage(0));
    stage.settle();
    drag({220, 0});
    stage.settle();
    EXPECT_EQ(page(), 0);
    EXPECT_TRUE(intro().isPresented()) << "before the first is nothing";

    const QQuickItem* dots = stage.item("introPageControl");
    ASSERT_NE(dots, nullptr);
    QTest::mouseClick(&stage.window(), Qt::LeftButton, {},
                      dots->mapToScene({dots->width() - 24, dots->height() / 2}).toPoint());
    ASSERT_TRUE(waitForPage(5));
    stage.settle();
    EXPECT_EQ(delegate->finished, 0);
    drag({-220, 0});
    EXPECT_TRUE(waitForEnd());
    EXPECT_EQ(delegate->finished, 1);
}

TEST_F(AboutTest, SkippingAndEscapingEndItOnceAndItCanBeShownAgain)
{
    showTour();
    press(Qt::Key_End);
    ASSERT_TRUE(waitForPage(5));
    stage.settle();
    click(skip());
    intro().finish();
    EXPECT_TRUE(waitForEnd());
    EXPECT_EQ(delegate->finished, 1);

    IntroView::showIntroViewInView(stage.tabs(), delegate);
    ASSERT_TRUE(stage.waitFor([&] { return skip() != nullptr; }));
    stage.settle();
    EXPECT_EQ(page(), 0);
    EXPECT_EQ(stage.item("introPages")->property("contentX").toDouble(), 0) << "page and dot are the same";
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitForEnd());
    EXPECT_EQ(delegate->finished, 2);

    IntroView::showIntroViewInView(stage.tabs(), delegate);
    delegate.reset();
    intro().finish();
    EXPECT_TRUE(waitForEnd()) << "nobody is left to be told";
}

TEST_F(AboutTest, TheTourMirrors)
{
    Appearance::shared().overrideMirrored(true);
    showTour();
    press(Qt::Key_Left);
    ASSERT_TRUE(waitForPage(1));
    stage.settle();
    drag({220, 0});
    ASSERT_TRUE(waitForPage(2));
    press(Qt::Key_Right);
    EXPECT_TRUE(waitForPage(1));
    EXPECT_LT(centerOf(skip()).x(), 195);
    press(Qt::Key_End);
    ASSERT_TRUE(waitForPage(5));
    stage.settle();
    drag({220, 0});
    EXPECT_TRUE(waitForEnd());
}

TEST_F(AboutTest, PagesAreSpelledOutWhereTheirPicturesCannotBeRead)
{
    QAccessible::setActive(true);
    showTour();
    const IntroPage first = intro().pages().front();
    ASSERT_FALSE(first.background.isEmpty());
    EXPECT_EQ(text(first.heading), nullptr) << "the picture says it";
    bool spoken = false;
    for (QQuickItem* item : stage.items("IntroPageView")) {
        QAccessibleInterface* const each = QAccessible::queryAccessibleInterface(item);
        spoken = spoken || (each != nullptr && each->text(QAccessible::Name) == first.heading &&
                            each->text(QAccessible::Description) == first.words);
    }
    EXPECT_TRUE(spoken);

    Appearance::shared().overrideTextScale(2);
    ASSERT_TRUE(stage.waitFor([&] { return text(first.heading) != nullptr; }));
    EXPECT_NE(text(first.words), nullptr);
    for (const QSize& size : {QSize(844, 390), QSize(360, 640)}) {
        stage.window().resize(size);
        stage.settle();
        const QQuickItem* words = text(first.words);
        ASSERT_NE(words, nullptr);
        const QRectF box = words->mapRectToScene(words->boundingRect());
        EXPECT_GE(box.left(), 0);
        EXPECT_LE(box.right(), size.width());
        EXPECT_GT(box.bottom(), 0);
        EXPECT_EQ(page(), 0);
    }
}

TEST_F(AboutTest, LongTextsScrollByKeysAndStandOnlyWhereTheyAreSeen)
{
    stage.show({390, 844}, fleet());
    auto* const notices = stage.open<OpenSourceViewController>(Scenes::openSourceViewController, {});
    ASSERT_TRUE(stage.waitFor([&] { return notices->licenseText()->pieces().size() > 100; }));
    const QString all = notices->licenseText()->attributedText();
    for (const char* library : {"Qt Base\n", "libxml2\n", "SQLite\n", "OpenSSL\n", "Lato\n"}) {
        EXPECT_TRUE(all.contains(library)) << library;
    }
    ASSERT_TRUE(stage.waitFor([&] { return text(notices->licenseText()->pieces().first()) != nullptr; }));
    const QQuickItem* const list = stage.item("readingList");
    const auto place = [&] {
        return list->property("contentY").toDouble() - list->property("originY").toDouble() +
               list->property("topMargin").toDouble();
    };
    EXPECT_EQ(place(), 0);
    // On a busy machine the page is still being laid out here, and a page key has no effect.
    stage.settle(200);
    press(Qt::Key_PageDown);
    press(Qt::Key_Down);
    EXPECT_GT(place(), 700);
    press(Qt::Key_PageUp);
    press(Qt::Key_Up);
    EXPECT_EQ(place(), 0);
    press(Qt::Key_End);
    EXPECT_TRUE(stage.waitFor([&] { return text(notices->licenseText()->pieces().last()) != nullptr; }));
    EXPECT_LT(stage.items("Label").size(), 60U);
    press(Qt::Key_Home);
    EXPECT_TRUE(stage.waitFor([&] { return text(notices->licenseText()->pieces().first()) != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_EQ(top(), &stage.list());
}

TEST_F(AboutTest, ReleaseNotesAndAgreementReadWell)
{
    for (const Scene<> scene : {Scenes::versionViewController, Scenes::OrnisLicenseViewController}) {
        stage.show({390, 844}, fleet());
        auto* const screen = stage.open<RichDocumentViewController>(scene, {});
        ASSERT_TRUE(stage.waitFor([&] { return screen->webview()->rowCount({}) > 20; })) << scene.identifier;
        const RichTextDocument& document = screen->webview()->document();
        EXPECT_FALSE(document.truncated);
        int markers = 0;
        for (const RichTextParagraph& paragraph : document.paragraphs) {
            markers += paragraph.marker.empty() ? 0 : 1;
            for (const RichTextRun& run : paragraph.runs) {
                EXPECT_EQ(run.text.find_first_of("\\{}"), std::string::npos) << run.text;
                EXPECT_EQ(run.text.find("\uFFFD"), std::string::npos) << run.text;
            }
        }
        EXPECT_GT(markers, 3);
        stage.settle();
        const QQuickItem* const list = stage.item("readingList");
        ASSERT_NE(list, nullptr);
        EXPECT_GT(list->property("contentHeight").toDouble(), 844);
    }
}

} // namespace
} // namespace lodestar::scenes

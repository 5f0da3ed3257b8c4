// SPDX-License-Identifier: Apache-2.0
#include "Application/IntroView.h"
#include "Platform/UserDefaults.h"
#include "Tests/Scenes/SceneTest.h"
#include "Views/About/OpenSourceViewController.h"
#include "Views/About/RichDocumentViewController.h"

#include <QRegularExpression>

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
    void showTour()
    {
        IntroView::showIntroViewInView(stage.tabs(), delegate);
        ASSERT_TRUE(stage.waitFor([&] { return skip() != nullptr && skip()->mapToScene({}).x() > 0; }));
        stage.settle();
    }
    QQuickItem* skip() const { return stage.item(QStringLiteral("introSkipButton")); }
    PagedIntro& intro() const { return *stage.tabs().intro(); }
    bool waitForPage(int number) const
    {
        const bool came = stage.waitFor([&] { return intro().pageControl()->currentPage() == number; });
        stage.settle();
        return came;
    }
    bool waitForEnd() const
    {
        return stage.waitFor([&] { return !intro().isPresented() && skip() == nullptr; });
    }
    void drag(int by) const
    {
        pull({195, 400}, by);
        letGo({195 + by, 400});
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

TEST_F(AboutTest, SwipesAndDotsTurnPagesOnEitherSideAndASwipePastTheLastEndsTheTourOnceEachTime)
{
    stage.show({390, 844}, fleet());
    for (const bool mirrored : {true, false}) {
        Appearance::shared().overrideMirrored(mirrored);
        delegate->finished = 0;
        showTour();
        EXPECT_EQ(intro().pageControl()->currentPage(), 0) << "from the start again";
        EXPECT_TRUE(mirrored || stage.item("introPages")->property("contentX") == 0) << "page and dot are the same";
        const int onwards = mirrored ? 220 : -220;
        EXPECT_EQ(centerOf(skip()).x() < 195, mirrored);
        drag(onwards);
        ASSERT_TRUE(waitForPage(1));
        press(mirrored ? Qt::Key_Right : Qt::Key_Left);
        ASSERT_TRUE(waitForPage(0));
        drag(-onwards);
        ASSERT_TRUE(waitForPage(0));
        EXPECT_TRUE(intro().isPresented()) << "before the first is nothing";

        const QQuickItem* dots = stage.item("introPageControl");
        ASSERT_NE(dots, nullptr);
        const double last = mirrored ? 24 : dots->width() - 24;
        QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, dots->mapToScene({last, dots->height() / 2}).toPoint());
        ASSERT_TRUE(waitForPage(5));
        EXPECT_EQ(delegate->finished, 0);
        drag(onwards);
        intro().finish();
        EXPECT_TRUE(waitForEnd());
        EXPECT_EQ(delegate->finished, 1);
    }
}

TEST_F(AboutTest, PagesAreSpelledOutWhereTheirPicturesCannotBeRead)
{
    QAccessible::setActive(true);
    stage.show({390, 844}, fleet());
    showTour();
    const IntroPage first = intro().pages().front();
    ASSERT_FALSE(first.background.isEmpty());
    EXPECT_EQ(text(first.heading), nullptr) << "the picture says it";
    EXPECT_TRUE(std::ranges::any_of(stage.items("IntroPageView"), [&](QQuickItem* item) {
        QAccessibleInterface* const each = QAccessible::queryAccessibleInterface(item);
        return spokenAs(item) == first.heading && each->text(QAccessible::Description) == first.words;
    }));

    Appearance::shared().overrideTextScale(2);
    ASSERT_TRUE(waitForText(first.heading));
    for (const QSize& size : {QSize(844, 390), QSize(360, 640)}) {
        stage.window().resize(size);
        stage.settle();
        const QQuickItem* words = text(first.words);
        ASSERT_NE(words, nullptr);
        const QRectF box = words->mapRectToScene(words->boundingRect());
        EXPECT_GE(box.left(), 0);
        EXPECT_LE(box.right(), size.width());
        EXPECT_GT(box.bottom(), 0);
        EXPECT_TRUE(waitForPage(0));
    }
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitForEnd());
}

TEST_F(AboutTest, LongTextsScrollByKeysAndStandOnlyWhereTheyAreSeen)
{
    stage.show({390, 844}, fleet());
    auto& notices = *stage.open<OpenSourceViewController>(Scenes::openSourceViewController, {})->licenseText();
    ASSERT_TRUE(stage.waitFor([&] { return notices.pieces().size() > 100; }));
    for (const char* library : {"Qt Base\n", "libxml2\n", "SQLite\n", "OpenSSL\n", "Lato\n"}) {
        EXPECT_TRUE(notices.attributedText().contains(library)) << library;
    }
    ASSERT_TRUE(waitForText(notices.pieces().first()));
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
    EXPECT_TRUE(waitForText(notices.pieces().last()));
    EXPECT_LT(stage.items("Label").size(), 60U);
    press(Qt::Key_Home);
    EXPECT_TRUE(waitForText(notices.pieces().first()));
    press(Qt::Key_Escape);
    EXPECT_EQ(top(), &stage.list());
}

TEST_F(AboutTest, ReleaseNotesAndAgreementReadWell)
{
    for (const Scene<> scene : {Scenes::versionViewController, Scenes::OrnisLicenseViewController}) {
        stage.show({390, 844}, fleet());
        RichDocumentOutlet& document = *stage.open<RichDocumentViewController>(scene, {})->webview();
        ASSERT_TRUE(stage.waitFor([&] { return document.paragraphs().size() > 20; })) << scene.identifier;
        int markers = 0;
        for (const RichParagraph& paragraph : document.paragraphs()) {
            markers += paragraph.marker.isEmpty() ? 0 : 1;
            EXPECT_FALSE(paragraph.text.contains(QRegularExpression("[\\\\{}\uFFFD]"))) << paragraph.text.toStdString();
        }
        EXPECT_GT(markers, 3);
        stage.settle();
        EXPECT_TRUE(std::ranges::any_of(stage.items("QQuickText"), [&](const QQuickItem* item) {
            return item->property("text").toString().contains(document.paragraphs().front().text);
        }));
        EXPECT_GT(stage.item("readingList")->property("contentHeight").toDouble(), 844);
    }
}

} // namespace
} // namespace lodestar::scenes

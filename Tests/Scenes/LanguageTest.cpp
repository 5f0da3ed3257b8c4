// SPDX-License-Identifier: Apache-2.0
// Every scene in every language, on the two usual widths of a phone, in plain and in double text.
#include "Application/IntroView.h"
#include "Kit/Core/Languages.h"
#include "Tests/Scenes/SceneTest.h"
#include "Tests/Support/LongRun.h"
#include "Tools/Screenshots/Looks.h"

#include <QMutex>
#include <QRegularExpression>
#include <QSet>

namespace lodestar::scenes
{
namespace
{

constexpr double tolerance = 1;
constexpr int smallest = 10; ///< points of a type that can be read

/// Says what the language has, and remembers it: what the program itself says may not be cut, other than the names that
/// consoles give.
class Remembered final : public QTranslator
{
public:
    explicit Remembered(const QString& language)
    {
        EXPECT_TRUE(m_texts.load(QStringLiteral(":/languages/lodestar_%1.qm").arg(language)));
        QCoreApplication::installTranslator(this);
    }
    QString translate(const char* context, const char* source, const char* comment, int n) const override
    {
        const QString text = m_texts.translate(context, source, comment, n);
        const QMutexLocker lock(&m_mutex);
        m_said.insert(text.isEmpty() ? QString::fromUtf8(source) : text);
        return text;
    }
    bool isEmpty() const override { return false; }

    /// Whether the program says so by itself, or with nothing but numbers in it.
    bool said(const QString& shown) const
    {
        const QMutexLocker lock(&m_mutex);
        return m_said.contains(shown) || std::ranges::any_of(m_said, [&shown](const QString& text) {
                   static const QRegularExpression place(QStringLiteral("%(L?n|\\d)"));
                   QString pattern;
                   qsizetype end = 0;
                   for (const QRegularExpressionMatch& found : place.globalMatch(text)) {
                       pattern += QRegularExpression::escape(text.mid(end, found.capturedStart() - end)) +
                                  QStringLiteral("[\\d.,:/ ]+");
                       end = found.capturedEnd();
                   }
                   // A pattern without a word of its own says nothing.
                   const QString rest = text.mid(end);
                   return end > 0 && (end > 3 || rest.size() > 3) &&
                          QRegularExpression(
                              QRegularExpression::anchoredPattern(pattern + QRegularExpression::escape(rest)),
                              QRegularExpression::UseUnicodePropertiesOption)
                              .match(shown)
                              .hasMatch();
               });
    }

private:
    QTranslator m_texts;
    mutable QMutex m_mutex;
    mutable QSet<QString> m_said;
};

class LanguageTest : public SceneTest, public ::testing::WithParamInterface<const char*>
{
protected:
    LanguageTest() : m_before(QLocale()), m_language(QString::fromLatin1(GetParam()))
    {
        Languages::use({m_language});
        m_words.emplace(m_language);
    }
    ~LanguageTest() override
    {
        m_words.reset();
        Languages::use({QStringLiteral("en")});
        QLocale::setDefault(m_before);
    }

    /// Where a text's letters are, in the window: a line's place is higher than its letters.
    static QRectF inkOf(const QQuickItem* text)
    {
        const double width = std::min(text->property("contentWidth").toDouble(), text->width());
        const int alignment = text->property("effectiveHorizontalAlignment").toInt();
        const double free = text->width() - width;
        const double x = alignment == Qt::AlignRight ? free : alignment == Qt::AlignHCenter ? free / 2 : 0;
        const double above =
            std::max(0.0, text->property("lineHeight").toDouble() - text->property("font").value<QFont>().pixelSize()) /
            2;
        return text->mapRectToScene(QRectF(x, 0, width, text->height()).adjusted(0, above, 0, -above));
    }
    /// The nearest item around a text whose type's name begins so; null for none.
    static const QQuickItem* around(const QQuickItem* text, const std::vector<const char*>& types)
    {
        while (text != nullptr && std::ranges::none_of(types, [text](const char* type) {
                   return QByteArray(text->metaObject()->className()).startsWith(type);
               })) {
            text = text->parentItem();
        }
        return text;
    }
    /// What holds texts that may not lie upon each other.
    static const QQuickItem* placeOf(const QQuickItem* text)
    {
        const QQuickItem* const place = around(text, {"TableRow", "NavigationBar", "RootBar"});
        return place != nullptr ? place : text->parentItem();
    }
    /// A row that is swiped open slides over the window's edge.
    static bool isSwiped(const QQuickItem* text)
    {
        const QQuickItem* const row = around(text, {"SwipeCell"});
        return row != nullptr && row->property("isOpen").toBool();
    }
    bool isSeen(const QQuickItem* text) const
    {
        double opacity = 1;
        for (const QQuickItem* item = text; item != nullptr; item = item->parentItem()) {
            opacity *= item->opacity();
        }
        return opacity > 0 && text->width() > 0 && !text->property("text").toString().trimmed().isEmpty();
    }
    /// What is wrong with the texts that are shown now.
    std::vector<std::string> faults() const
    {
        std::vector<std::string> found;
        std::vector<QQuickItem*> texts = stage.items(QStringLiteral("QQuickText"));
        std::erase_if(texts, [this](const QQuickItem* each) { return !isSeen(each); });
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            const QString shown = (*text)->property("text").toString();
            const auto say = [&](const std::string& what) {
                found.push_back('"' + shown.toStdString() + "\" " + what);
            };
            if ((*text)->property("truncated").toBool() && m_words->said(shown)) {
                say("is cut");
            }
            if ((*text)->property("contentWidth").toDouble() > (*text)->width() + tolerance) {
                say("leaves its place");
            }
            const QVariant size = (*text)->property("drawnSize");
            if (size.isValid() && size.toInt() < smallest && m_words->said(shown)) {
                say("is drawn in " + std::to_string(size.toInt()) + " points");
            }
            const QRectF ink = inkOf(*text);
            // What lies beside the window as a whole is on another page.
            const bool isBeside = ink.right() <= 0 || ink.left() >= stage.window().width();
            if (!isBeside && !isSwiped(*text) &&
                (ink.left() < -tolerance || ink.right() > stage.window().width() + tolerance)) {
                say("leaves the window");
            }
            for (auto other = text + 1; other != texts.end(); ++other) {
                const QRectF common = placeOf(*text) == placeOf(*other) ? ink.intersected(inkOf(*other)) : QRectF();
                if (common.width() > tolerance && common.height() > tolerance) {
                    say("lies upon \"" + (*other)->property("text").toString().toStdString() + '"');
                }
            }
        }
        return found;
    }
    /// What is wrong while something moves is not wrong.
    void expectWhole(const QString& where) const
    {
        std::vector<std::string> found;
        EXPECT_TRUE(stage.waitFor([&] { return (found = faults()).empty(); })) << where.toStdString();
        for (const std::string& each : found) {
            ADD_FAILURE() << where.toStdString() << ": " << each;
        }
    }
    void visit(const AnyScene& scene, const QString& how) const
    {
        const std::shared_ptr<ViewController> screen = scene.make();
        stage.list().navigationController()->pushViewController(screen, Animated::No);
        stage.waitFor([this] { return stage.items(QStringLiteral("Spinner")).empty(); });
        stage.settle(60);
        expectWhole(QString::fromStdString(scene.name) + how);
        stage.list().navigationController()->popViewController(Animated::No);
        stage.settle(30);
    }

    const QLocale m_before;
    const QString m_language;
    std::optional<Remembered> m_words;
};

TEST_P(LanguageTest, SaysEverythingWhole)
{
    for (const double scale : {1.0, 2.0}) {
        for (const QSize size : {QSize(360, 640), QSize(390, 844)}) {
            const QString how = QStringLiteral(", %1 wide, text times %2").arg(size.width()).arg(scale);
            Appearance::shared().overrideTextScale(scale);
            stage.show(size, {});
            expectWhole(QStringLiteral("no consoles") + how);
            stage.show(size, fleet());
            expectWhole(QStringLiteral("consoles") + how);
            stage.showDashboard();
            stage.settle(200);
            expectWhole(QStringLiteral("dashboard") + how);
            stage.tabs().setSelectedIndex(0);
            for (const AnyScene& scene : everyScene(demoConsole())) {
                visit(scene, how);
            }
        }
    }
}

/// Screens as they look with something to tell: usually the ones with the most words, in the long run all.
TEST_P(LanguageTest, SaysWhatThereIsToTellWhole)
{
    static const QSet<QString> chosen = {"attention",
                                         "attention-filter",
                                         "attention-unknown",
                                         "changes",
                                         "triage",
                                         "triage-by-code",
                                         "find-results",
                                         "fleet-choose",
                                         "fleet-again",
                                         "fleet-results",
                                         "settings-on",
                                         "settings-keychain",
                                         "passcode-reset-alert",
                                         "feedback",
                                         "feedback-crash-offer",
                                         "watch",
                                         "watch-end",
                                         "managed-systems-actions",
                                         "managed-systems-failed",
                                         "event-detail",
                                         "performance-summary",
                                         "large-chart",
                                         "intro-tour-last",
                                         "first-run",
                                         "copy-menu",
                                         "settings-passcode"};
    const bool all = isLongRun();
    using Size = std::pair<QSize, double>;
    const std::vector<Size> sizes =
        all ? std::vector<Size>{{{360, 640}, 1}, {{390, 844}, 1}, {{360, 640}, 2}, {{390, 844}, 2}}
            : std::vector<Size>{{{390, 844}, 1}, {{360, 640}, 2}};
    const std::vector<Size> wideSizes = {{{1280, 800}, 1}, {{1000, 700}, 2}};
    for (const Look& look : everyLook()) {
        if (!all && !chosen.contains(QLatin1String(look.name))) {
            continue;
        }
        for (const auto& [size, scale] : look.isWide ? wideSizes : sizes) {
            Appearance::shared().overrideTextScale(scale);
            open(stage, look, size);
            stage.settle(200);
            expectWhole(QStringLiteral("%1, %2 wide, text times %3")
                            .arg(QLatin1String(look.name))
                            .arg(size.width())
                            .arg(scale));
        }
    }
}

TEST_P(LanguageTest, ShowsTheToursPicturesWithItsOwnWords)
{
    const QString folder =
        m_language == QLatin1String("en") ? QStringLiteral("/ts") : QStringLiteral("/%1/ts").arg(m_language);
    for (const IntroPage& page : IntroView::pages()) {
        EXPECT_TRUE(page.background.path().startsWith(folder)) << page.background.path().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest, ::testing::Values("en", "de", "fr", "es", "ja", "ar"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace
} // namespace lodestar::scenes

// SPDX-License-Identifier: Apache-2.0
// Every scene in every language, on the two usual widths of a phone, in plain and in double text.
#include "Kit/Core/Languages.h"
#include "Tests/Scenes/SceneTest.h"
#include "Tools/Screenshots/Looks.h"

#include <QMutex>
#include <QRegularExpression>
#include <QSet>

namespace lodestar::scenes
{
namespace
{

constexpr double tolerance = 1;

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
    /// What holds texts that may not lie upon each other.
    static const QQuickItem* placeOf(const QQuickItem* text)
    {
        for (const QQuickItem* item = text; item != nullptr; item = item->parentItem()) {
            if (QByteArray(item->metaObject()->className()).startsWith("TableRow")) {
                return item;
            }
        }
        return text->parentItem();
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
            const QRectF ink = inkOf(*text);
            // What lies beside the window as a whole is on another page.
            const bool isBeside = ink.right() <= 0 || ink.left() >= stage.window().width();
            if (!isBeside && (ink.left() < -tolerance || ink.right() > stage.window().width() + tolerance)) {
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

/// Screens as they look with something to tell: the ones with the most words.
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
    for (const auto& looks :
         {inventoryLooks(), eventAndGroupLooks(), performanceLooks(), aboutLooks(), lockLooks(), feedbackLooks(),
          attentionLooks(), findLooks(), connectionLooks(), copyLooks(), fleetSheetLooks()}) {
        for (const Look& look : looks) {
            if (!chosen.contains(QLatin1String(look.name))) {
                continue;
            }
            for (const auto& [size, scale] : {std::pair(QSize(390, 844), 1.0), std::pair(QSize(360, 640), 2.0)}) {
                Appearance::shared().overrideTextScale(scale);
                stage.show(size, look.consoles);
                look.prepare(stage);
                stage.settle(200);
                expectWhole(QStringLiteral("%1, %2 wide, text times %3")
                                .arg(QLatin1String(look.name))
                                .arg(size.width())
                                .arg(scale));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest, ::testing::Values("en", "de", "fr", "es", "ja", "ar"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace
} // namespace lodestar::scenes

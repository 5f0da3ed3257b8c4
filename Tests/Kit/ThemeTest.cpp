// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/IconProvider.h"
#include "Kit/Core/Kit.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "KitWindow.h"

#include <QDirIterator>
#include <QQmlExpression>

#include <cmath>

namespace lodestar
{

namespace
{

double light(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = light(one) + 0.05;
    const double b = light(other) + 0.05;
    return a > b ? a / b : b / a;
}

class ThemeTest : public testing::Test
{
protected:
    ThemeTest()
    {
        installKit(m_engine);
        m_holder = make("QtObject { readonly property QtObject theme: Theme }");
    }
    std::unique_ptr<QObject> make(const QByteArray& qml)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick; import Lodestar.Kit; " + qml, QUrl(QStringLiteral("qrc:/kit/Made.qml")));
        std::unique_ptr<QObject> made(component.create());
        EXPECT_NE(made, nullptr) << component.errorString().toStdString();
        return made;
    }
    QVariant theme(const char* property) const
    {
        const QVariant value = m_holder->property("theme").value<QObject*>()->property(property);
        EXPECT_TRUE(value.isValid()) << property;
        return value;
    }
    QColor color(const char* role) const { return theme(role).value<QColor>(); }
    /// What a function of the theme answers for a role.
    QVariant answer(const char* function, int role) const
    {
        QQmlExpression call(qmlContext(m_holder.get()), m_holder.get(),
                            QStringLiteral("theme.%1(%2)").arg(function).arg(role));
        const QVariant value = call.evaluate();
        EXPECT_FALSE(call.hasError()) << call.error().toString().toStdString();
        return value;
    }

    AppearanceReset m_reset;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_holder;
};

} // namespace

TEST_F(ThemeTest, EveryNamedColourAndEveryRoleLooksAsDesignedInBothAppearances)
{
    // The others are seen in the roles below.
    EXPECT_EQ(UIColor::selectedBlue(), QColor(0x009EEB));
    EXPECT_EQ(UIColor::dashboardBlue(), QColor(0x4274B9));
    EXPECT_EQ(UIColor::dashboardRed(), QColor(0xE32226));
    EXPECT_EQ(UIColor::dashboardGrey(), QColor(0x919191));
    EXPECT_EQ(UIColor::dashboardYellow(), QColor(0xFFC81D));
    const auto looks = [&](const char* function, int roles) {
        std::vector<QRgb> found;
        for (int role = 0; role < roles; ++role) {
            found.push_back(answer(function, role).value<QColor>().rgba());
        }
        return found;
    };
    using Row = std::vector<QRgb>;
    for (const bool dark : {false, true}) {
        SCOPED_TRACE(dark ? "dark" : "light");
        Appearance::shared().overrideDark(dark);
        // None, Good, Off, Idle, Alert, Error, BadgedError, Offline
        Row inks = {0xFF555555, 0xFF008B11, 0xFF8E8E93, 0xFF66707E, 0xFFB35900, 0xFF8B0A00, 0xFF66707E, 0xFF66707E};
        if (dark) {
            inks = {0xFFC9D0D8, 0xFF008B11, 0xFF8E8E93, 0xFF95A0AD, 0xFFF39C12, 0xFF8B0A00, 0xFF95A0AD, 0xFF95A0AD};
        }
        EXPECT_EQ(looks("stateInk", 8), inks);
        inks[5] = 0xFFE32226; // an error's mark without a word
        EXPECT_EQ(looks("loneMarkInk", 8), inks);
        // Standard, Quiet, Positive, Favourite, Destructive
        EXPECT_EQ(looks("buttonGround", 5),
                  (Row{0xFF133C5B, dark ? 0xFF4A5460 : 0xFFC3CAD3, 0xFF7BBE31, 0xFF8B0A00, 0xFFE32226}));
        EXPECT_EQ(looks("buttonInk", 5),
                  (Row{0xFFFFFFFF, dark ? 0xFFECEFF3 : 0xFF1A2027, 0xFF133C5B, 0xFFFFFFFF, 0xFFFFFFFF}));
        EXPECT_EQ(color("accentInk").rgba(), dark ? 0xFF71C7F4 : 0xFF0072AD);
        EXPECT_EQ(color("chartOrange").rgba(), dark ? 0xFFF39C12 : 0xFFD97A00);
        EXPECT_EQ(color("chartGreen").rgba(), dark ? 0xFF50B048 : 0xFF008B11);
        EXPECT_EQ(color("chartBlue").rgba(), dark ? 0xFFA9DDF8 : 0xFF00308B);
    }
    QStringList marks;
    for (int state = 0; state < 8; ++state) {
        marks << answer("stateMark", state).toString();
    }
    EXPECT_EQ(marks, QStringList({"", "good", "off", "off", "alert", "error", "error", "offline"}));
}

TEST_F(ThemeTest, TextsKeepTheirContrastInBothAppearances)
{
    struct Pair {
        const char* text;
        const char* on;
        double inLight;
        double inDark;
    };
    // Inks whose colour is fixed above keep theirs as long as ink3 does on the same ground.
    const Pair pairs[] = {
        {"ink", "card", 16.4, 16.2},     {"ink2", "card", 6.6, 8.8},           {"ink2", "ground", 6.0, 4.5},
        {"ink3", "card", 5.0, 7.0},      {"ink3", "ground", 4.5, 4.5},         {"fillInk", "fill", 5.2, 10.0},
        {"errorRed", "plate", 8.3, 6.4}, {"systemRedInk", "raised", 4.5, 6.5}, {"ink", "match", 13.1, 9.9},
        {"ink", "pressed", 12, 12},      {"hovered", "card", 1.2, 1.1},        {"hovered", "ground", 1.1, 1.2},
    };
    for (const bool dark : {false, true}) {
        Appearance::shared().overrideDark(dark);
        for (const Pair& pair : pairs) {
            EXPECT_GE(contrast(color(pair.text), color(pair.on)) + 0.05, dark ? pair.inDark : pair.inLight)
                << pair.text << " on " << pair.on << (dark ? ", dark" : ", light");
        }
    }
}

TEST_F(ThemeTest, HighContrastRaisesInksToSevenAndLinesAndChartsToFour)
{
    Appearance::shared().setSystemHighContrast(true);
    for (const bool dark : {false, true}) {
        Appearance::shared().overrideDark(dark);
        const auto expect = [&](const char* drawn, const char* ground, double least) {
            EXPECT_GE(contrast(color(drawn), color(ground)), least)
                << drawn << " on " << ground << (dark ? ", dark" : ", light");
        };
        for (const char* ground : {"ground", "card", "raised", "pressed", "well", "match"}) {
            for (const char* ink : {"ink", "ink2", "titleInk"}) {
                expect(ink, ground, 7);
            }
        }
        for (const char* ground : {"ground", "card", "raised"}) {
            for (const char* ink : {"ink3", "accentInk", "tabSelected", "successGreen", "failedRed", "systemOrange",
                                    "orangeOnGround", "systemRedInk"}) {
                expect(ink, ground, 7);
            }
            for (const char* line :
                 {"hairline", "outline", "track", "faint", "chartOrange", "chartGreen", "chartBlue"}) {
                expect(line, ground, 4);
            }
        }
        expect("fillInk", "fill", 7);
        expect("errorRed", "plate", 7);
        EXPECT_EQ(theme("outlineWidth").toInt(), 1);
    }
    Appearance::shared().setSystemHighContrast(false);
    EXPECT_EQ(theme("outlineWidth").toInt(), 0);
}

TEST_F(ThemeTest, ScaleStopsWhereItShouldAndDirectionFollows)
{
    const auto with = [&](double scale) {
        Appearance::shared().overrideTextScale(scale);
        return std::vector<double>{theme("textScale").toDouble(), theme("barScale").toDouble(),
                                   theme("badgeScale").toDouble(), theme("stacked").toBool() ? 1.0 : 0.0};
    };
    EXPECT_EQ(with(0.5), (std::vector<double>{1, 1, 1, 0}));
    EXPECT_EQ(with(1.4), (std::vector<double>{1.4, 1.3, 1.4, 0}));
    EXPECT_EQ(with(9), (std::vector<double>{2, 1.3, 1.5, 1}));
    // The desktop's own, where the platform has not made everything larger by it.
    Appearance::shared().overrideTextScale({});
    Appearance::shared().setSystemTextScale(2);
    EXPECT_TRUE(theme("stacked").toBool());
    Appearance::shared().setSystemTextScale(1);
    EXPECT_FALSE(theme("stacked").toBool());
    Appearance::shared().overrideMirrored(true);
    EXPECT_TRUE(theme("mirrored").toBool());
}

TEST_F(ThemeTest, CapitalsAreCentredInTheirLineByPixels)
{
    for (const int size : {13, 17, 34}) {
        const auto window =
            make(QStringLiteral("Window { visible: true; color: \"white\"; width: 60; height: label.height; "
                                "Label { id: label; text: \"H\"; size: %1; color: \"black\" } }")
                     .arg(size)
                     .toUtf8());
        auto* const shown = qobject_cast<QQuickWindow*>(window.get());
        ASSERT_TRUE(shown != nullptr && waitFor([&] { return shown->isExposed(); }));
        const QImage image = shown->grabWindow();
        QRect ink;
        for (int pixel = 0; pixel < image.width() * image.height(); ++pixel) {
            const QPoint at(pixel % image.width(), pixel / image.width());
            ink |= qGray(image.pixel(at)) < 128 ? QRect(at, QSize(1, 1)) : QRect();
        }
        ASSERT_FALSE(ink.isEmpty()) << size;
        EXPECT_NEAR(ink.top(), image.height() - 1 - ink.bottom(), 1) << size;
    }
}

TEST_F(ThemeTest, ACardsRoundCornersAreCoveredWhateverChanges)
{
    const auto window =
        make("Window { visible: true; color: \"blue\"; width: 60; height: 40; property alias card: card; "
             "CardCorners { id: card; color: \"red\"; roundBottom: false; anchors.fill: parent } }");
    auto* const shown = qobject_cast<QQuickWindow*>(window.get());
    ASSERT_TRUE(shown != nullptr && waitFor([&] { return shown->isExposed(); }));
    auto* const card = shown->property("card").value<QQuickItem*>();
    const auto corners = [&] {
        const QImage image = shown->grabWindow();
        const int right = image.width() - 1;
        const int bottom = image.height() - 1;
        EXPECT_EQ(image.pixelColor(right / 2, bottom / 2), QColor("blue"));
        EXPECT_EQ(image.pixelColor(12, 12), QColor("blue")); // where a circle meets the surface's edges
        return std::vector{image.pixelColor(0, 0).name(), image.pixelColor(right, 0).name(),
                           image.pixelColor(0, bottom).name(), image.pixelColor(right, bottom).name()};
    };
    const QString red = QColor("red").name();
    const QString green = QColor("green").name();
    const QString bare = QColor("blue").name();
    EXPECT_EQ(corners(), (std::vector{red, red, bare, bare}));
    card->setProperty("color", QColor("green"));
    card->setProperty("roundBottom", true);
    EXPECT_EQ(corners(), (std::vector{green, green, green, green}));
    card->setProperty("roundTop", false);
    shown->resize(80, 50);
    EXPECT_TRUE(waitFor([&] { return card->width() == 80 && card->height() == 50; }));
    EXPECT_EQ(corners(), (std::vector{bare, bare, green, green}));
}

TEST_F(ThemeTest, EveryDrawingIsReadAndTinted)
{
    IconProvider provider;
    int drawings = 0;
    QDirIterator files(QStringLiteral(":/icons"));
    while (files.hasNext()) {
        files.next();
        const QString name = files.fileInfo().baseName();
        QSize size;
        const QImage image = provider.requestImage(name + "/ff0000", &size, {48, 48});
        ASSERT_EQ(image.size(), QSize(48, 48)) << name.toStdString();
        int painted = 0;
        for (int pixel = 0; pixel < 48 * 48; ++pixel) {
            painted += qAlpha(image.pixel(pixel % 48, pixel / 48)) > 40 ? 1 : 0;
        }
        EXPECT_GT(painted, 20) << name.toStdString();
        ++drawings;
    }
    EXPECT_GT(drawings, 50);
    const QImage red = provider.requestImage("state_good/ff0000", nullptr, {12, 12});
    EXPECT_EQ(red.pixel(6, 6), qRgb(255, 0, 0));
    EXPECT_NEAR(qAlpha(provider.requestImage("state_good/80ff0000", nullptr, {12, 12}).pixel(6, 6)), 128, 1);
    EXPECT_TRUE(provider.requestImage("nonesuch/ff0000", nullptr, {}).isNull());
}

TEST_F(ThemeTest, WhatIsNotSeenIsNeitherDrawnNorMade)
{
    const auto page = make(R"(
        Item {
            id: page
            property bool shown: false
            readonly property url source: icon.source
            readonly property Item made: nothing.item
            Item { visible: page.shown; Icon { id: icon; name: "search" } }
            NoContent { id: nothing; visible: page.shown; text: "Nothing" }
        })");
    EXPECT_TRUE(page->property("source").toUrl().isEmpty());
    EXPECT_EQ(page->property("made").value<QObject*>(), nullptr);
    page->setProperty("shown", true);
    EXPECT_EQ(page->property("source").toUrl().scheme(), "image");
    const QObject* const made = page->property("made").value<QObject*>();
    EXPECT_NE(made, nullptr);
    page->setProperty("shown", false);
    EXPECT_TRUE(page->property("source").toUrl().isEmpty());
    EXPECT_EQ(page->property("made").value<QObject*>(), made);
}

} // namespace lodestar

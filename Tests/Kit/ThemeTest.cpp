// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/IconProvider.h"
#include "Kit/Core/Kit.h"
#include "Kit/Core/Role.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "KitWindow.h"

#include <QColor>
#include <QDirIterator>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExpression>
#include <gtest/gtest.h>

#include <algorithm>
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
    ~ThemeTest() override
    {
        Appearance::shared().overrideDark({});
        Appearance::shared().overrideTextScale({});
        Appearance::shared().overrideMirrored({});
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
    template <typename Named>
    QVariant answer(const char* function, Named role) const
    {
        QQmlExpression call(qmlContext(m_holder.get()), m_holder.get(),
                            QStringLiteral("theme.%1(%2)").arg(function).arg(static_cast<int>(role)));
        const QVariant value = call.evaluate();
        EXPECT_FALSE(call.hasError()) << call.error().toString().toStdString();
        return value;
    }

    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_holder;
};

} // namespace

TEST_F(ThemeTest, EveryNamedColourAndEveryRoleLooksAsSpecifiedInBothAppearances)
{
    const std::pair<QColor, QRgb> named[] = {
        {UIColor::tesselLightBlue(), 0xFF71C7F4}, {UIColor::tesselLightGreen(), 0xFF7BBE31},
        {UIColor::tesselBlue(), 0xFF133C5B},      {UIColor::selectedBlue(), 0xFF009EEB},
        {UIColor::ornisBlue(), 0xFF00308B},       {UIColor::successGreen(), 0xFF008B11},
        {UIColor::errorRed(), 0xFF8B0A00},        {UIColor::failedRed(), 0xFF8E8E93},
        {UIColor::dashboardBlue(), 0xFF4274B9},   {UIColor::dashboardRed(), 0xFFE32226},
        {UIColor::dashboardGreen(), 0xFF50B048},  {UIColor::dashboardGrey(), 0xFF919191},
        {UIColor::dashboardYellow(), 0xFFFFC81D}, {UIColor::dashboardOrange(), 0xFFF39C12},
    };
    for (const auto& [color, value] : named) {
        EXPECT_EQ(color.rgba(), value) << color.name().toStdString();
    }
    struct Look {
        Role::State state;
        const char* mark;
        QRgb inLight;
        QRgb inDark;
        QRgb lone = 0; ///< of the mark without a word, where it differs
    };
    const Look looks[] = {
        {Role::State::None, "", 0xFF555555, 0xFFC9D0D8},
        {Role::State::Good, "good", 0xFF008B11, 0xFF008B11},
        {Role::State::Off, "off", 0xFF8E8E93, 0xFF8E8E93},
        {Role::State::Idle, "off", 0xFF66707E, 0xFF95A0AD},
        {Role::State::Alert, "alert", 0xFFB35900, 0xFFF39C12},
        {Role::State::Error, "error", 0xFF8B0A00, 0xFF8B0A00, 0xFFE32226},
        {Role::State::BadgedError, "error", 0xFF66707E, 0xFF95A0AD},
        {Role::State::Offline, "offline", 0xFF66707E, 0xFF95A0AD},
    };
    struct Button {
        Role::Button role;
        std::pair<QRgb, QRgb> inLight; ///< ground and ink
        std::pair<QRgb, QRgb> inDark;
    };
    const Button buttons[] = {
        {Role::Button::Standard, {0xFF133C5B, 0xFFFFFFFF}, {0xFF133C5B, 0xFFFFFFFF}},
        {Role::Button::Quiet, {0xFFC3CAD3, 0xFF1A2027}, {0xFF4A5460, 0xFFECEFF3}},
        {Role::Button::Positive, {0xFF7BBE31, 0xFF133C5B}, {0xFF7BBE31, 0xFF133C5B}},
        {Role::Button::Favourite, {0xFF8B0A00, 0xFFFFFFFF}, {0xFF8B0A00, 0xFFFFFFFF}},
        {Role::Button::Destructive, {0xFFE32226, 0xFFFFFFFF}, {0xFFE32226, 0xFFFFFFFF}},
    };
    const auto rgba = [&](const char* function, auto role) {
        return answer(function, role).template value<QColor>().rgba();
    };
    for (const bool dark : {false, true}) {
        Appearance::shared().overrideDark(dark);
        for (const Look& look : looks) {
            const QRgb ink = dark ? look.inDark : look.inLight;
            EXPECT_EQ(rgba("stateInk", look.state), ink) << static_cast<int>(look.state) << dark;
            EXPECT_EQ(rgba("loneMarkInk", look.state), look.lone != 0 ? look.lone : ink)
                << static_cast<int>(look.state);
            EXPECT_EQ(answer("stateMark", look.state).toString(), look.mark) << static_cast<int>(look.state);
        }
        for (const Button& button : buttons) {
            EXPECT_EQ(std::pair(rgba("buttonGround", button.role), rgba("buttonInk", button.role)),
                      dark ? button.inDark : button.inLight)
                << static_cast<int>(button.role) << dark;
        }
        EXPECT_EQ(color("accent").rgba(), 0xFF009EEB);
        EXPECT_EQ(color("accentInk").rgba(), dark ? 0xFF71C7F4 : 0xFF0072AD);
        EXPECT_EQ(color("chartOrange").rgba(), dark ? 0xFFF39C12 : 0xFFD97A00);
        EXPECT_EQ(color("chartGreen").rgba(), dark ? 0xFF50B048 : 0xFF008B11);
        EXPECT_EQ(color("chartBlue").rgba(), dark ? 0xFFA9DDF8 : 0xFF00308B);
    }
}

TEST_F(ThemeTest, TextsKeepTheirContrastInBothAppearances)
{
    struct Pair {
        const char* text;
        const char* on;
        double inLight;
        double inDark;
    };
    const Pair pairs[] = {
        {"ink", "card", 16.4, 16.2},
        {"ink2", "card", 6.6, 8.8},
        {"ink2", "ground", 6.0, 4.5},
        {"ink3", "card", 5.0, 7.0},
        {"ink3", "ground", 4.5, 4.5},
        {"titleInk", "ground", 6.7, 13.0},
        {"accentInk", "card", 5.2, 9.9},
        {"accentInk", "ground", 4.7, 9.9},
        {"fillInk", "fill", 5.2, 10.0},
        {"successGreen", "card", 4.4, 4.2},
        {"failedRed", "card", 3.2, 5.7},
        {"errorRed", "plate", 8.3, 6.4},
        {"systemOrange", "card", 4.8, 8.4},
        {"systemRedInk", "raised", 4.5, 6.5},
        {"accent", "card", 2.9, 6.2},
        {"lightGreyInk", "systemLightGrey", 9.8, 6.6},
        {"ink", "match", 13.1, 9.9},
        {"ink", "pressed", 12, 12},
        {"hovered", "card", 1.2, 1.1},
        {"hovered", "ground", 1.1, 1.2},
        {"chartOrange", "card", 3.0, 8.4},
        {"chartBlue", "card", 11.6, 12.7},
        {"tesselBlue", "tesselLightGreen", 4.5, 4.5},
    };
    for (const bool dark : {false, true}) {
        Appearance::shared().overrideDark(dark);
        for (const Pair& pair : pairs) {
            EXPECT_GE(contrast(color(pair.text), color(pair.on)) + 0.05, dark ? pair.inDark : pair.inLight)
                << pair.text << " on " << pair.on << (dark ? ", dark" : ", light");
        }
    }
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
        const auto hasInk = [&](int y) {
            const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            return std::any_of(line, line + image.width(), [](QRgb pixel) { return qGray(pixel) < 128; });
        };
        int above = 0;
        int below = 0;
        while (above < image.height() && !hasInk(above)) {
            ++above;
        }
        while (below < image.height() && !hasInk(image.height() - 1 - below)) {
            ++below;
        }
        ASSERT_LT(above, image.height()) << size;
        EXPECT_NEAR(above, below, 1) << size;
    }
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
            readonly property Item made: (nothing.children[0] as Loader).item
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

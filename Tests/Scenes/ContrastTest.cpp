// SPDX-License-Identifier: Apache-2.0
#include "Tests/Scenes/SceneTest.h"

#include <QFile>
#include <QRegularExpression>

#include <cmath>
#include <map>

namespace lodestar::scenes
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

int distance(const QColor& one, const QColor& other)
{
    return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
           std::abs(one.blue() - other.blue());
}

QColor laid(const QColor& over, double opacity, const QColor& ground)
{
    const auto mix = [opacity](double upper, double lower) { return upper * opacity + lower * (1 - opacity); };
    return QColor::fromRgbF(static_cast<float>(mix(over.redF(), ground.redF())),
                            static_cast<float>(mix(over.greenF(), ground.greenF())),
                            static_cast<float>(mix(over.blueF(), ground.blueF())));
}

/// A drawing of one tint. Pictures with colours of their own tell themselves apart by their shapes.
bool isTinted(const QString& name)
{
    QFile file(":/icons/" + name + ".svg");
    static const QRegularExpression other("(fill|stroke)=\"#");
    return file.open(QIODevice::ReadOnly) && !QString::fromUtf8(file.readAll()).contains(other);
}

/// What is drawn too faintly, each pair of colours once, with a place where it was seen.
class ContrastTest : public SceneTest
{
protected:
    ~ContrastTest() override
    {
        Appearance::shared().overrideDark({});
        Appearance::shared().overrideHighContrast({});
    }
    /// The colour that most of the place has.
    static QColor groundOf(const QImage& picture, const QRect& place)
    {
        std::map<QRgb, int> counts;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                ++counts[picture.pixel(x, y)];
            }
        }
        return QColor::fromRgb(
            std::ranges::max_element(counts, {}, [](const auto& each) { return each.second; })->first);
    }
    /// Whether the ink is there at all: nothing else may lie over it.
    static bool isSeen(const QImage& picture, const QRect& place, const QColor& ink, const QColor& ground)
    {
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (distance(picture.pixelColor(x, y), ink) < distance(ink, ground) / 4) {
                    return true;
                }
            }
        }
        return false;
    }
    void judge(const QImage& picture, const QQuickItem& item, int around, double least, const QString& what)
    {
        double opacity = 1;
        for (const QQuickItem* each = &item; each != nullptr; each = each->parentItem()) {
            opacity *= each->opacity();
        }
        const QRectF drawn = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
        const QRect place = drawn.toRect().adjusted(-around, -around, around, around) & picture.rect();
        // What cannot be used is meant to be faint.
        if (!item.isEnabled() || place.width() < 2 || place.height() < 2) {
            return;
        }
        const QColor ground = groundOf(picture, place);
        const auto color = item.property("color").value<QColor>();
        const QColor ink = laid(color, opacity * color.alphaF(), ground);
        const double ratio = contrast(ink, ground);
        if (ink == ground || !isSeen(picture, place, ink, ground)) {
            return;
        }
        ++seen;
        if (ratio < least) {
            faint.try_emplace(ink.name() + " on " + ground.name(),
                              QStringLiteral("%1, %2").arg(ratio, 0, 'f', 2).arg(what));
        }
    }
    void look(const std::string& scene)
    {
        const QImage picture = stage.grab();
        const bool isHigh = Appearance::shared().isHighContrast();
        for (const QQuickItem* text : stage.items(QStringLiteral("QQuickText"))) {
            const QString words = text->property("text").toString().trimmed();
            const bool isLarge = text->property("font").value<QFont>().pixelSize() >= 24;
            const double least = isHigh ? 7 : isLarge ? 3 : 4.5;
            if (!words.isEmpty()) {
                judge(picture, *text, 0, least, QString::fromStdString(scene) + ": " + words);
            }
        }
        for (const QQuickItem* icon : stage.items(QStringLiteral("Icon"))) {
            const QString name = icon->property("name").toString();
            // Chevrons and zeros only decorate.
            const bool decorates = name.startsWith("chevron") || name.isEmpty();
            if (!decorates && isTinted(name)) {
                judge(picture, *icon, 4, isHigh ? 4.5 : 3, QString::fromStdString(scene) + ": " + name);
            }
        }
    }

    std::map<QString, QString> faint;
    int seen = 0;
};

TEST_F(ContrastTest, EveryTextAndMarkStandsOutFromWhatIsPaintedBelowIt)
{
    // The palette's own colours, whose contrast the design takes into account: a shape or a word stands beside each.
    const QStringList known = {"#008b11 on #ffffff", "#008b11 on #0f1317", "#8e8e93 on #ffffff", "#009eeb on #ffffff",
                               "#a9b3bf on #ffffff"};
    std::vector<ConsoleLook> consoles = fleet();
    consoles[2].state = ConsoleLook::State::Offline;
    struct {
        bool dark;
        bool high;
    } const appearances[] = {{false, false}, {true, false}, {false, true}, {true, true}};
    for (const auto& [dark, high] : appearances) {
        SCOPED_TRACE(std::string(dark ? "dark" : "light") + (high ? ", high contrast" : ""));
        Appearance::shared().overrideDark(dark);
        Appearance::shared().overrideHighContrast(high);
        faint.clear();
        seen = 0;
        stage.show({390, 844}, consoles);
        stage.settle(100);
        look("console list");
        stage.showDashboard();
        stage.settle(300);
        look("dashboard");
        stage.show({390, 844}, {});
        for (const AnyScene& scene : everyScene(demoConsole())) {
            stage.list().navigationController()->pushViewController(scene.make(), Animated::No);
            ASSERT_TRUE(stage.waitFor([this] { return stage.items("Spinner").empty(); })) << scene.name;
            stage.settle(150);
            look(scene.name);
            stage.list().navigationController()->popViewController(Animated::No);
        }
        EXPECT_GT(seen, 300);
        for (const auto& [pair, where] : faint) {
            EXPECT_TRUE(known.contains(pair)) << pair.toStdString() << ": " << where.toStdString();
        }
    }
}

} // namespace
} // namespace lodestar::scenes

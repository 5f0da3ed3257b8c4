// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Inventory/Metrics/MetricsTimeline.h"
#include "Kit/Core/Appearance.h"
#include "Kit/Core/NavigationController.h"
#include "Tools/Stage/SceneStage.h"

#include <QAccessible>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

#include <algorithm>

namespace lodestar::scenes
{

/// A language whose every text stands in brackets and is half as long again.
class PseudoLanguage final : public QTranslator
{
public:
    PseudoLanguage() { QCoreApplication::installTranslator(this); }
    static QString of(const QString& text) { return "{" + text + QString(text.size() / 2, '_') + "}"; }
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/, int /*n*/) const override
    {
        return of(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

/// What any scene can be opened with.
struct AnyInput {
    static constexpr const char* sheet = "name,address,user,rack\nHarbour,a.example,ops,1\nNone,,ops,2\n";
    CorvelRef corvel;
    XMLElement root;

    operator NoInput() const { return {}; }
    operator CorvelRef() const { return corvel; }
    operator XMLElement() const { return root; }
    operator EditorInput() const { return {corvel, {}}; }
    operator SystemMenuInput() const { return {corvel, root}; }
    operator PartitionsInput() const { return {corvel, {}}; }
    operator PerformanceInput() const { return {corvel, "helios-01", "any"}; }
    operator FleetFileInput() const
    {
        return {QStringLiteral("fleet.csv"), std::make_shared<const Result<QByteArray>>(QByteArray(sheet))};
    }
    operator std::shared_ptr<const FleetSheet>() const
    {
        return std::make_shared<const FleetSheet>(readFleetSheet(sheet, {}).value());
    }
    operator std::shared_ptr<FleetImport>() const
    {
        return std::make_shared<FleetImport>(FleetSheet(), std::map<std::string, std::string>());
    }
    operator FindInput() const { return {QStringLiteral("1")}; }
    operator LargeChartInput() const
    {
        return {"helios-01", std::make_shared<const PerformanceMetrics>(), MetricsSegment::Processors};
    }
};

struct AnyScene {
    std::string name;
    std::function<std::shared_ptr<ViewController>()> make;
};

/// Every scene of the storyboard but the main view, which only holds two of them, and the lock, which leads on to it.
/// Details are of the console's first system.
inline std::vector<AnyScene> everyScene(const CorvelRef& corvel)
{
    const Feed systems = feedOfType(*corvel, ObjectType::ManagedSystem);
    const AnyInput input{corvel, contentOf(systems.entries().front(), ObjectType::ManagedSystem)};
    const auto each = [&input](auto... scene) -> std::vector<AnyScene> {
        return {{scene.identifier,
                 [input, scene] { return Storyboard::main().instantiateViewController(scene, input); }}...};
    };
    return each(Scenes::corvelListView, Scenes::deltaCorvel, Scenes::dashboardView, Scenes::connectionView,
                Scenes::corvelTasksViewController, Scenes::managedSystemsView, Scenes::managedSystemInfo,
                Scenes::managedSystemMenu, Scenes::pcmDataView, Scenes::largeChartView, Scenes::managementConsoleView,
                Scenes::logicalPartitionsView, Scenes::logicalPartitionsDetail, Scenes::viosView, Scenes::viosDetail,
                Scenes::resourceGroupsView, Scenes::serviceableEventsView, Scenes::serviceableEventsDetail,
                Scenes::versionViewController, Scenes::openSourceViewController, Scenes::OrnisLicenseViewController,
                Scenes::settingsViewController, Scenes::passwordCreation, Scenes::attentionView, Scenes::watchView,
                Scenes::watchConsolesView, Scenes::findView, Scenes::fleetSheetView, Scenes::fleetChooseView,
                Scenes::fleetUnusableView, Scenes::fleetVerifyView);
}

/// A stage, and hands to work it with. No test may leave a QML warning behind.
class SceneTest : public ::testing::Test
{
protected:
    SceneTest() { Appearance::shared().overrideReducedMotion(true); }
    ~SceneTest() override
    {
        Appearance::shared().overrideTextScale({});
        Appearance::shared().overrideMirrored({});
        Appearance::shared().overrideReducedMotion({});
    }
    void TearDown() override { EXPECT_EQ(stage.warnings(), QStringList()); }

    QPoint centerOf(const QQuickItem* item) const
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    /// Clicks when no screen slides, since presses are blocked until then.
    void click(const QQuickItem* item) const
    {
        const QPointer<const QQuickItem> target(item);
        ASSERT_TRUE(stage.waitFor([this] {
            return firstWith("busy", true, stage.items(QStringLiteral("lodestar::NavigationStack"))) == nullptr;
        }));
        ASSERT_NE(target, nullptr);
        QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, centerOf(item));
    }
    /// Drags along x and leaves the button down.
    void pull(const QPoint& from, int by) const
    {
        QTest::mousePress(&stage.window(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 10; ++step) {
            QTest::mouseMove(&stage.window(), from + QPoint(by * step / 10, 0), 10);
        }
    }
    void letGo(const QPoint& at) const { QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, at, 60); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&stage.window(), key, modifiers);
    }
    void type(const char* text) const
    {
        for (; *text != 0; ++text) {
            QTest::keyClick(&stage.window(), *text);
        }
    }
    static QQuickItem* firstWith(const char* property, const QVariant& value, const std::vector<QQuickItem*>& items)
    {
        const auto found = std::ranges::find_if(items, [&](auto* item) { return item->property(property) == value; });
        return found != items.end() ? *found : nullptr;
    }
    /// In either language.
    static QQuickItem* firstThatReads(const QString& text, const std::vector<QQuickItem*>& items)
    {
        QQuickItem* const plain = firstWith("text", text, items);
        return plain != nullptr ? plain : firstWith("text", PseudoLanguage::of(text), items);
    }
    QQuickItem* button(const QString& text) const { return firstThatReads(text, stage.buttons()); }
    QQuickItem* row(int index) const { return firstWith("index", index, stage.items(QStringLiteral("TableRow"))); }
    QQuickItem* text(const QString& content) const
    {
        return firstThatReads(content, stage.items(QStringLiteral("QQuickText")));
    }
    bool waitForButton(const QString& words) const
    {
        return stage.waitFor([&] { return button(words) != nullptr; });
    }
    bool waitForText(const QString& words) const
    {
        return stage.waitFor([&] { return text(words) != nullptr; });
    }
    ViewController* top() const { return stage.list().navigationController()->topViewController(); }
    /// What a screen reader says for an item, once it is active.
    static QString spokenAs(QQuickItem* item)
    {
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(item);
        return spoken != nullptr ? spoken->text(QAccessible::Name) : QString();
    }
    bool waitForSheet() const
    {
        return waitForButton("Cancel") && stage.waitFor([this] {
            const QQuickItem* cancel = button("Cancel");
            const double top = cancel != nullptr ? cancel->mapToScene({}).y() : 0;
            stage.settle(30);
            return cancel != nullptr && cancel->mapToScene({}).y() == top && top < stage.window().height() - 200;
        });
    }
    bool waitForNoSheet() const
    {
        return stage.waitFor([this] { return button("Cancel") == nullptr && button("Save") == nullptr; });
    }

    SceneStage stage;
};

} // namespace lodestar::scenes

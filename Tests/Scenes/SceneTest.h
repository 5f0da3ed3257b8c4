// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Appearance.h"
#include "Kit/Core/NavigationController.h"
#include "Tools/Stage/SceneStage.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

namespace lodestar::scenes
{

/// What any scene over the console list can be opened with.
struct AnyInput {
    CorvelRef corvel;
    XMLElement root;

    operator NoInput() const { return {}; }
    operator CorvelRef() const { return corvel; }
    operator XMLElement() const { return root; }
    operator SystemMenuInput() const { return {corvel, root}; }
    operator PartitionsInput() const { return {corvel, {}}; }
};

/// A stage, and hands to work it with. No test may leave a QML warning behind.
class SceneTest : public ::testing::Test
{
protected:
    SceneTest()
    {
        // Motion explains; tests need no explanation.
        Appearance::shared().overrideReducedMotion(true);
    }
    ~SceneTest() override
    {
        Appearance::shared().overrideTextScale({});
        Appearance::shared().overrideMirrored({});
        Appearance::shared().overrideReducedMotion({});
    }
    void TearDown() override { EXPECT_EQ(stage.warnings(), QStringList()); }

    /// Opens the scenes one after the other and leaves each after `look`, which is told its identifier.
    template <typename... Input>
    void visit(const AnyInput& input, const std::function<void(const char*)>& look, Scene<Input>... scene) const
    {
        const auto visitOne = [&](auto each) {
            ASSERT_NE(stage.open(each, input), nullptr);
            look(each.identifier);
            stage.list().navigationController()->pop();
            stage.settle(200);
        };
        (visitOne(scene), ...);
    }
    QPoint centerOf(const QQuickItem* item) const
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void click(const QQuickItem* item) const
    {
        ASSERT_NE(item, nullptr);
        QTest::mouseClick(&stage.window(), Qt::LeftButton, {}, centerOf(item));
    }
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
    QQuickItem* button(const QString& text) const
    {
        for (QQuickItem* item : stage.buttons()) {
            if (item->property("text").toString() == text) {
                return item;
            }
        }
        return nullptr;
    }
    QQuickItem* row(int index) const
    {
        for (QQuickItem* item : stage.items(QStringLiteral("TableRow"))) {
            if (item->property("index").toInt() == index) {
                return item;
            }
        }
        return nullptr;
    }
    QQuickItem* text(const QString& content) const
    {
        for (QQuickItem* item : stage.items(QStringLiteral("QQuickText"))) {
            if (item->property("text").toString() == content) {
                return item;
            }
        }
        return nullptr;
    }
    ViewController* top() const { return stage.list().navigationController()->topViewController(); }
    /// What a screen reader says for a table's row, once it is active.
    static QString spokenAs(QQuickItem* tableRow)
    {
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(tableRow);
        return spoken != nullptr ? spoken->text(QAccessible::Name) : QString();
    }
    bool waitForSheet() const
    {
        return stage.waitFor([this] { return button(QStringLiteral("Cancel")) != nullptr; }) && stage.waitFor([this] {
            const QQuickItem* cancel = button(QStringLiteral("Cancel"));
            const double top = cancel != nullptr ? cancel->mapToScene({}).y() : 0;
            stage.settle(30);
            return cancel != nullptr && cancel->mapToScene({}).y() == top && top < stage.window().height() - 200;
        });
    }

    SceneStage stage;
};

} // namespace lodestar::scenes

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/Charts.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace lodestar::charttest
{

/// A chart of a view at the top of a page that can be scrolled, in a shown window of 366 × 500 points.
template <typename View, typename Item>
class ChartItemFixture : public testing::Test
{
protected:
    /// The chart is made of that QML, which finds the view under the name `chartView`.
    void show(const QByteArray& chart)
    {
        installCharts(m_engine);
        m_engine.rootContext()->setContextProperty(QStringLiteral("chartView"), &m_view);
        QQmlComponent component(&m_engine);
        component.setData(R"(
            import QtQuick
            import Lodestar.Charts
            Window {
                width: 366; height: 500; visible: true
                Flickable { anchors.fill: parent; contentHeight: 2000; objectName: "page"; )" +
                              chart + "} }",
                          QUrl());
        m_root.reset(component.create());
        ASSERT_TRUE(m_root) << component.errorString().toStdString();
        m_window = qobject_cast<QQuickWindow*>(m_root.get());
        m_item = m_window->findChild<Item*>();
        m_page = m_window->findChild<QQuickItem*>(QStringLiteral("page"));
        ASSERT_TRUE(m_item && m_page);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window));
        m_window->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
    }

    double scrolled() const { return m_page->property("contentY").toDouble(); }
    QTest::QTouchEventSequence touch() { return QTest::touchEvent(m_window, m_device.get()); }
    /// One finger from a point by a stroke, in steps that the window hands on one by one.
    void stroke(QPoint from, QPoint by, const std::function<bool()>& arrived)
    {
        touch().press(0, from);
        for (int step = 1; step <= 20 && !arrived(); ++step) {
            touch().move(0, from + by * step / 20);
            (void)QTest::qWaitFor(arrived, 40);
        }
        EXPECT_TRUE(arrived());
        touch().release(0, from + by);
    }

    const std::unique_ptr<QPointingDevice> m_device{QTest::createTouchDevice()}; // Outlives the window it touches.
    View m_view;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_root;
    QQuickWindow* m_window = nullptr;
    Item* m_item = nullptr;
    QQuickItem* m_page = nullptr;
};

} // namespace lodestar::charttest

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Appearance.h"
#include "Kit/Core/Kit.h"
#include "Kit/Core/ViewController.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace lodestar
{

/// Runs the event loop until the predicate holds; false when it does not within ten seconds.
inline bool waitFor(const std::function<bool()>& predicate)
{
    return QTest::qWaitFor(predicate, 10'000);
}

/// Appearance outlives the test, and what a test has overridden would.
struct AppearanceReset {
    ~AppearanceReset()
    {
        Appearance::shared().overrideDark({});
        Appearance::shared().overrideTextScale({});
        Appearance::shared().overrideMirrored({});
        Appearance::shared().overrideReducedMotion({});
    }
};

/// A window that shows a controller, as the application's does.
class KitWindow
{
public:
    explicit KitWindow(const std::shared_ptr<ViewController>& root, QSize size = {390, 844})
    {
        installKit(*m_view.engine());
        QObject::connect(m_view.engine(), &QQmlEngine::warnings, &m_view, [](const QList<QQmlError>& warnings) {
            for (const QQmlError& warning : warnings) {
                ADD_FAILURE() << warning.toString().toStdString();
            }
        });
        m_view.engine()->setOutputWarningsToStandardError(false);
        m_view.setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue<QObject*>(root.get())}});
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.resize(size);
        m_view.setSource(QUrl(QStringLiteral("qrc:/kit/RootView.qml")));
        m_view.show();
        m_view.requestActivate();
        EXPECT_TRUE(waitFor([&] { return m_view.isExposed() && m_view.isActive(); }));
    }
    QQuickView& view() { return m_view; }
    /// The first item below the window whose QML type is so named, or whose objectName is; null for none.
    QQuickItem* find(const QString& name) { return find(m_view.contentItem(), name); }
    static QQuickItem* find(QQuickItem* item, const QString& name)
    {
        const QString type = QString::fromLatin1(item->metaObject()->className()).section(u"_QML"_qs, 0, 0);
        if (item->objectName() == name || type == name) {
            return item;
        }
        for (QQuickItem* child : item->childItems()) {
            if (QQuickItem* found = find(child, name)) {
                return found;
            }
        }
        return nullptr;
    }
    static QPoint centre(const QQuickItem* item)
    {
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }
    void click(const QPoint& at) { QTest::mouseClick(&m_view, Qt::LeftButton, {}, at); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&m_view, key, modifiers); }
    void drag(QPoint from, QPoint by)
    {
        QTest::mousePress(&m_view, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 8; ++step) {
            QTest::mouseMove(&m_view, from + by * step / 8, 12);
        }
        QTest::mouseRelease(&m_view, Qt::LeftButton, {}, from + by, 60);
    }
    /// Eight moves of a finger, so many milliseconds apart, and a rest before it leaves.
    void swipe(QPoint from, QPoint by, int pace = 12, int rest = 60)
    {
        static QPointingDevice* const finger = QTest::createTouchDevice();
        QTest::touchEvent(&m_view, finger).press(1, from, &m_view);
        for (int step = 1; step <= 8; ++step) {
            QTest::qWait(pace);
            QTest::touchEvent(&m_view, finger).move(1, from + by * step / 8, &m_view);
        }
        QTest::qWait(rest);
        QTest::touchEvent(&m_view, finger).release(1, from + by, &m_view);
    }

private:
    QQuickView m_view;
    AppearanceReset m_reset;
};

} // namespace lodestar

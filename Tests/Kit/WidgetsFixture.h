// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Gallery.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "KitWindow.h"

#include <gmock/gmock.h>

namespace lodestar
{

inline std::shared_ptr<GalleryController> gallery(const char* scene)
{
    auto controller = makeController<GalleryController>();
    controller->setScene(QUrl(QStringLiteral("qrc:/kit/%1.qml").arg(QLatin1String(scene))));
    return controller;
}

/// A list of the gallery, to be shown in a window.
class WidgetsTest : public testing::Test
{
protected:
    std::shared_ptr<GalleryController> list = gallery("GalleryScene");

    /// The drawn row of the list, by its flat index.
    static QQuickItem* row(KitWindow& window, int index)
    {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(flickable(window), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, index));
        return item;
    }
    static QQuickItem* flickable(KitWindow& window)
    {
        return window.find("table")->property("flickable").value<QQuickItem*>();
    }
    static QVariant ofSwipe(KitWindow& window, int index, const char* property)
    {
        return row(window, index)->property("swipe").value<QQuickItem*>()->property(property);
    }
    static bool hasRing(KitWindow& window, int index) { return ofSwipe(window, index, "focusShown").toBool(); }
    /// Whether the row settles so many points aside.
    static bool settles(KitWindow& window, int index, double aside)
    {
        return waitFor([&] { return ofSwipe(window, index, "reveal").toDouble() == aside; });
    }
    static QPointF place(KitWindow& window, const char* scene) { return window.find(scene)->mapToScene({0, 0}); }
    static bool comesTo(KitWindow& window, const char* scene, QPointF at)
    {
        return waitFor([&] { return window.find(scene) != nullptr && place(window, scene) == at; });
    }
    /// Whether the scene goes, and its controller only after it.
    static bool goesBefore(const std::weak_ptr<GalleryController>& controller, QQuickItem* scene,
                           const std::function<void()>& leave)
    {
        bool sceneWentFirst = false;
        QObject::connect(scene, &QObject::destroyed, scene, [&] { sceneWentFirst = !controller.expired(); });
        leave();
        return waitFor([&] { return controller.expired(); }) && sceneWentFirst;
    }
};

} // namespace lodestar

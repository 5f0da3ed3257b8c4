// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

#include <QPointer>
#include <QQuickItem>

namespace lodestar
{

/// Draws a controller: loads its view, then its scene with the property `controller` set, and keeps the controller
/// alive as long as the scene. A tab bar or navigation controller without a scene of its own gets the kit's scene.
class SceneHost : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::ViewController* controller READ controller WRITE setController NOTIFY controllerChanged)
    Q_PROPERTY(QQuickItem* scene READ scene NOTIFY sceneChanged)
    Q_PROPERTY(bool reportsAppearance MEMBER m_reportsAppearance)

public:
    explicit SceneHost(QQuickItem* parent = nullptr);
    ~SceneHost() override;

    ViewController* controller() const { return m_controller.data(); }
    /// A replaced scene is deleted after the running event, because one of the scene's own handlers may be the caller.
    void setController(ViewController* controller);
    /// Null until loaded, and when the file cannot be loaded, which is logged.
    QQuickItem* scene() const { return m_scene.data(); }

Q_SIGNALS:
    void controllerChanged();
    void sceneChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void load();
    void retire();
    void fill();

    QPointer<ViewController> m_controller;
    std::shared_ptr<ViewController> m_keep;
    QPointer<QQuickItem> m_scene;
    /// true for the host of a window, which tells the controller that it appears and disappears
    bool m_reportsAppearance = false;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/SceneHost.h"

#include "Kit/Core/MakeItem.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"

#include <QQmlComponent>
#include <QQmlEngine>

#include <utility>

namespace lodestar
{

namespace
{

QUrl sceneOf(const ViewController& controller)
{
    if (!controller.scene().isEmpty()) {
        return controller.scene();
    }
    if (qobject_cast<const NavigationController*>(&controller) != nullptr) {
        return QUrl(QStringLiteral("qrc:/Lodestar/Kit/NavigationView.qml"));
    }
    if (qobject_cast<const TabBarController*>(&controller) != nullptr) {
        return QUrl(QStringLiteral("qrc:/Lodestar/Kit/TabBarView.qml"));
    }
    return {};
}

/// Deletes a scene and then releases its controller, once the running event is over.
class Retired : public QObject
{
public:
    Retired(QQuickItem* scene, std::shared_ptr<ViewController> keep) : m_keep(std::move(keep)), m_scene(scene) {}
    ~Retired() override { delete m_scene.data(); }

private:
    std::shared_ptr<ViewController> m_keep;
    QPointer<QQuickItem> m_scene;
};

} // namespace

SceneHost::SceneHost(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

SceneHost::~SceneHost()
{
    if (m_reportsAppearance && m_controller) {
        m_controller->endAppearance();
    }
    // The scene is deleted first, because its bindings read the controller until then.
    delete m_scene.data();
}

void SceneHost::setController(ViewController* controller)
{
    if (m_controller == controller) {
        return;
    }
    retire();
    m_controller = controller;
    m_keep = controller != nullptr ? controller->weak_from_this().lock() : nullptr;
    Q_EMIT controllerChanged();
    if (isComponentComplete()) {
        load();
    }
}

void SceneHost::componentComplete()
{
    QQuickItem::componentComplete();
    load();
}

void SceneHost::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    fill();
}

void SceneHost::load()
{
    if (!m_controller || m_scene) {
        return;
    }
    m_controller->loadViewIfNeeded();
    QQmlComponent component(qmlEngine(this), sceneOf(*m_controller));
    const QVariant controller = QVariant::fromValue<QObject*>(m_controller.data());
    m_scene = makeItem(component, {{QStringLiteral("controller"), controller}}, *this);
    if (!m_scene) {
        qWarning("A scene cannot be shown: %s", qPrintable(component.errorString()));
    } else {
        m_scene->setFocus(true);
        fill();
    }
    Q_EMIT sceneChanged();
    if (m_reportsAppearance && m_controller) {
        m_controller->beginAppearance();
    }
}

void SceneHost::retire()
{
    if (m_reportsAppearance && m_controller) {
        m_controller->endAppearance();
    }
    if (m_scene) {
        m_scene->setParent(nullptr);
        m_scene->setVisible(false);
        m_scene->setEnabled(false);
        (new Retired(m_scene, std::move(m_keep)))->deleteLater();
        m_scene = nullptr;
    }
}

void SceneHost::fill()
{
    if (m_scene) {
        m_scene->setSize(size());
    }
}

} // namespace lodestar

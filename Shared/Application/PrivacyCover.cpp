// SPDX-License-Identifier: Apache-2.0
#include "Application/PrivacyCover.h"

#include "Platform/UserDefaults.h"

#include <QQmlComponent>
#include <QQuickView>

namespace lodestar
{
namespace
{

/// Above the layer in which sheets and alerts stand.
constexpr double aboveEverything = 1e7;

} // namespace

void PrivacyCover::applicationStateDidChange(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive) {
        delete m_cover.data();
    } else if (!m_cover && UserDefaults::standard().boolForKey("requirePassword")) {
        cover();
    }
}

void PrivacyCover::cover()
{
    QQmlComponent component(m_window.engine(), QUrl(QStringLiteral("qrc:/Lodestar/Application/PrivacyCoverScene.qml")));
    QQuickItem* const root = m_window.contentItem();
    QObject* const made = component.createWithInitialProperties(
        {{QStringLiteral("parent"), QVariant::fromValue(root)}, {QStringLiteral("z"), aboveEverything}});
    m_cover = qobject_cast<QQuickItem*>(made);
    if (m_cover) {
        m_cover->setParent(root);
    } else {
        delete made;
        qWarning("The cover cannot be shown: %s", qPrintable(component.errorString()));
    }
}

} // namespace lodestar

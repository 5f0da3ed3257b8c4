// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/LaterItem.h"

#include "Kit/Core/MakeItem.h"

#include <QQmlComponent>
#include <QQmlEngine>

namespace lodestar
{

void LaterItem::setWanted(bool wanted)
{
    if (wanted != m_wanted) {
        m_wanted = wanted;
        make();
        Q_EMIT wantedChanged();
    }
}

void LaterItem::componentComplete()
{
    QQuickItem::componentComplete();
    make();
}

void LaterItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_item) {
        m_item->setSize(newGeometry.size());
    }
}

void LaterItem::make()
{
    if (!m_wanted || m_item || !isComponentComplete()) {
        return;
    }
    QQmlComponent component(qmlEngine(this), QUrl(m_source));
    m_item = makeItem(component,
                      {{QStringLiteral("subject"), QVariant::fromValue(m_subject ? m_subject.data() : this)}}, *this);
    if (!m_item) {
        qWarning("An item cannot be shown: %s", qPrintable(component.errorString()));
        return;
    }
    connect(m_item, &QQuickItem::implicitWidthChanged, this, &LaterItem::takeImplicitSize);
    connect(m_item, &QQuickItem::implicitHeightChanged, this, &LaterItem::takeImplicitSize);
    takeImplicitSize();
    Q_EMIT itemChanged();
}

void LaterItem::takeImplicitSize()
{
    setImplicitSize(m_item->implicitWidth(), m_item->implicitHeight());
}

} // namespace lodestar

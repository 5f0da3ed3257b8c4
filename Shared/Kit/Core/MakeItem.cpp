// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/MakeItem.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

namespace lodestar
{

QQuickItem* makeItem(QQmlComponent& component, const QVariantMap& properties, QQuickItem& parent)
{
    // Qt 6.4 crashes when it creates an item from a broken file.
    if (!component.isReady()) {
        return nullptr;
    }
    QQmlContext* const context = component.creationContext();
    QObject* const made = component.beginCreate(context != nullptr ? context : component.engine()->rootContext());
    component.setInitialProperties(made, properties);
    auto* const item = qobject_cast<QQuickItem*>(made);
    if (item != nullptr) {
        item->setParent(&parent);
        item->setParentItem(&parent);
        item->setSize(parent.size());
    }
    component.completeCreate();
    if (item == nullptr) {
        delete made;
    }
    return item;
}

} // namespace lodestar

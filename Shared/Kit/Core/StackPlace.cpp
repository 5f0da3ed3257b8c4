// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/StackPlace.h"

#include <QQuickWindow>

#include <utility>

namespace lodestar
{

StackPlace::StackPlace(QObject* owner) : QObject(owner)
{
    for (QObject* object = owner; object != nullptr && !m_item; object = object->parent()) {
        m_item = qobject_cast<QQuickItem*>(object);
    }
    if (m_item) {
        // An item is often asked before its screen is on the stack.
        connect(m_item, &QQuickItem::parentChanged, this, &StackPlace::find);
        connect(m_item, &QQuickItem::windowChanged, this, &StackPlace::find);
        find();
    }
}

void StackPlace::find()
{
    NavigationStack* stack = nullptr;
    for (QQuickItem* item = m_item; item != nullptr && stack == nullptr; item = item->parentItem()) {
        stack = qobject_cast<NavigationStack*>(item->parentItem());
        m_page = stack != nullptr ? item : nullptr;
    }
    if (m_stack != stack && m_stack) {
        disconnect(m_stack, nullptr, this, nullptr);
    }
    if (stack != nullptr && m_stack != stack) {
        connect(stack, &NavigationStack::placesChanged, this, &StackPlace::update);
        connect(m_page, &QQuickItem::focusChanged, this, &StackPlace::update);
    }
    m_stack = stack;
    update();
}

void StackPlace::update()
{
    // A popped screen keeps its column while it slides away.
    const bool isOnStack = m_page && m_stack && m_stack->pageOf(*m_page) != nullptr;
    const bool isStart = isOnStack && m_page == m_stack->startPage();
    if (isOnStack || !m_page) {
        const Column column = isStart ? Start : isOnStack && m_stack->isSplit() ? End : Whole;
        if (std::exchange(m_column, column) != column) {
            Q_EMIT columnChanged();
        }
    }
    const bool isKeyed = !isOnStack || !m_stack->isSplit() || m_stack->isEndEmpty() || m_page->hasFocus();
    if (std::exchange(m_keyed, isKeyed) != isKeyed) {
        Q_EMIT keyedChanged();
    }
    Q_EMIT changed();
}

} // namespace lodestar

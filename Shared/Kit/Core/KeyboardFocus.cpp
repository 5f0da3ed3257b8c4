// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/KeyboardFocus.h"

#include <QKeyEvent>
#include <QQuickWindow>

#include <utility>

namespace lodestar
{

void KeyboardFocus::setItem(QQuickItem* item)
{
    if (m_item == item) {
        return;
    }
    if (m_item) {
        m_item->disconnect(this);
    }
    m_item = item;
    if (item != nullptr) {
        const auto watch = [this](QQuickWindow* window) {
            if (window != nullptr) {
                window->installEventFilter(this);
            }
        };
        watch(item->window());
        connect(item, &QQuickItem::windowChanged, this, watch);
        connect(item, &QQuickItem::activeFocusChanged, this, &KeyboardFocus::follow);
    }
    follow();
    Q_EMIT itemChanged();
}

bool KeyboardFocus::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        m_isTabbing = key == Qt::Key_Tab || key == Qt::Key_Backtab;
        break;
    }
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        m_isTabbing = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KeyboardFocus::follow()
{
    const bool visual = m_item && m_item->hasActiveFocus() && m_isTabbing;
    if (std::exchange(m_visual, visual) != visual) {
        Q_EMIT visualChanged();
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Pressable.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <utility>

namespace lodestar
{

Pressable::Pressable(QQuickItem* parent) : AccessibleItem(parent)
{
    setAcceptHoverEvents(QGuiApplication::styleHints()->useHoverEffects());
    setPressable(true);
    connect(this, &AccessibleItem::accessiblePressed, this, &Pressable::clicked);
}

void Pressable::setPressable(bool pressable)
{
    setAcceptedMouseButtons(pressable ? Qt::LeftButton : Qt::NoButton);
    setActiveFocusOnTab(pressable);
    setPressAction(pressable);
    if (std::exchange(m_pressable, pressable) != pressable) {
        Q_EMIT pressableChanged();
    }
}

void Pressable::mousePressEvent(QMouseEvent* event)
{
    if (!QGuiApplication::styleHints()->setFocusOnTouchRelease()) {
        forceActiveFocus(Qt::MouseFocusReason);
    }
    setPressed(true);
    event->accept();
}

void Pressable::mouseMoveEvent(QMouseEvent* event)
{
    setPressed(contains(event->position()));
}

void Pressable::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    if (QGuiApplication::styleHints()->setFocusOnTouchRelease()) {
        forceActiveFocus(Qt::MouseFocusReason);
    }
    release();
}

void Pressable::mouseDoubleClickEvent(QMouseEvent* event)
{
    // Two quick presses count as two presses, not as a double click.
    setPressed(true);
    event->accept();
}

void Pressable::mouseUngrabEvent()
{
    setPressed(false);
}

void Pressable::hoverEnterEvent(QHoverEvent* event)
{
    setHovered(true);
    event->ignore(); // items below have to notice the pointer too
}

void Pressable::hoverLeaveEvent(QHoverEvent* event)
{
    setHovered(false);
    event->ignore();
}

void Pressable::keyPressEvent(QKeyEvent* event)
{
    if (m_pressable && event->key() == Qt::Key_Space) {
        setPressed(m_pressed || !event->isAutoRepeat());
        event->accept();
    } else if (m_pressable && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        event->accept();
        if (!event->isAutoRepeat()) {
            Q_EMIT clicked();
        }
    } else {
        event->ignore();
    }
}

void Pressable::keyReleaseEvent(QKeyEvent* event)
{
    if (m_pressable && event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) {
            release();
        }
        event->accept();
    } else {
        event->ignore();
    }
}

void Pressable::focusOutEvent(QFocusEvent* event)
{
    AccessibleItem::focusOutEvent(event);
    setPressed(false);
}

void Pressable::itemChange(ItemChange change, const ItemChangeData& data)
{
    const bool gone =
        (change == ItemVisibleHasChanged && !data.boolValue) || (change == ItemEnabledHasChanged && !data.boolValue);
    if (gone) {
        setPressed(false);
        setHovered(false);
    }
    AccessibleItem::itemChange(change, data);
}

void Pressable::setPressed(bool pressed)
{
    if (std::exchange(m_pressed, pressed) != pressed) {
        Q_EMIT pressedChanged();
    }
}

void Pressable::setHovered(bool hovered)
{
    if (std::exchange(m_hovered, hovered) != hovered) {
        Q_EMIT hoveredChanged();
    }
}

void Pressable::release()
{
    const bool held = m_pressed;
    setPressed(false);
    if (held) {
        Q_EMIT clicked();
    }
}

} // namespace lodestar

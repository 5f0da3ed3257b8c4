// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Pressable.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <utility>

namespace lodestar
{

Pressable::Pressable(QQuickItem* parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(QGuiApplication::styleHints()->useHoverEffects());
    setActiveFocusOnTab(true);
}

void Pressable::setText(const QString& text)
{
    if (m_text != text) {
        m_text = text;
        Q_EMIT textChanged();
    }
}

void Pressable::accessiblePressAction()
{
    if (isEnabled()) {
        Q_EMIT clicked();
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
    // Two quick presses are two presses.
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
    event->ignore(); // what lies below is pointed at as well
}

void Pressable::hoverLeaveEvent(QHoverEvent* event)
{
    setHovered(false);
    event->ignore();
}

void Pressable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space) {
        setPressed(m_pressed || !event->isAutoRepeat());
        event->accept();
    } else {
        event->ignore();
    }
}

void Pressable::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) {
            release();
        }
        event->accept();
    } else {
        event->ignore();
    }
}

void Pressable::focusInEvent(QFocusEvent* event)
{
    QQuickItem::focusInEvent(event); // tells a screen reader
    const Qt::FocusReason reason = event->reason();
    setVisualFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                   reason == Qt::ShortcutFocusReason);
}

void Pressable::focusOutEvent(QFocusEvent* event)
{
    QQuickItem::focusOutEvent(event);
    setPressed(false);
    setVisualFocus(false);
}

void Pressable::itemChange(ItemChange change, const ItemChangeData& data)
{
    const bool gone =
        (change == ItemVisibleHasChanged && !data.boolValue) || (change == ItemEnabledHasChanged && !data.boolValue);
    if (gone) {
        setPressed(false);
        setHovered(false);
    }
    QQuickItem::itemChange(change, data);
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

void Pressable::setVisualFocus(bool visualFocus)
{
    if (std::exchange(m_visualFocus, visualFocus) != visualFocus) {
        Q_EMIT visualFocusChanged();
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

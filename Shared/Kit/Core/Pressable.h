// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/AccessibleItem.h"

namespace lodestar
{

/// A button without looks: finger, mouse, space bar, Return and screen readers press it. Buttons derive from this and
/// not from Qt's button template, for two reasons: the template tells screen readers of a press that does nothing, and
/// importing one template registers all of them, which takes longer than the first screen may.
class Pressable : public lodestar::AccessibleItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged FINAL)
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged FINAL)
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    /// Whether the item can be pressed. If not, it takes neither presses nor the keyboard focus.
    Q_PROPERTY(bool pressable READ isPressable WRITE setPressable NOTIFY pressableChanged FINAL)

public:
    explicit Pressable(QQuickItem* parent = nullptr);

    /// Whether a press is held and still on the item.
    bool isPressed() const { return m_pressed; }
    bool isHovered() const { return m_hovered; }
    bool isPressable() const { return m_pressable; }
    void setPressable(bool pressable);

Q_SIGNALS:
    void textChanged();
    void pressedChanged();
    void hoveredChanged();
    void pressableChanged();
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void setPressed(bool pressed);
    void setHovered(bool hovered);
    /// Ends a press and emits the click if the press was still on the item.
    void release();

    QString m_text;
    bool m_pressed = false;
    bool m_hovered = false;
    bool m_pressable = true;
};

} // namespace lodestar

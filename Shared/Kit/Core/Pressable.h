// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/AccessibleItem.h"

namespace lodestar
{

/// What a button is without its looks: pressed by finger, mouse, the space bar, Return or a screen reader. Buttons are
/// made of these and not of Qt's template of a button: that one tells readers of a press that it does not do, and
/// importing one template registers every one of them, which takes longer than the first screen has.
class Pressable : public lodestar::AccessibleItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged FINAL)
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    /// Whether there is anything to press: what only rests takes no press and no keyboard.
    Q_PROPERTY(bool pressable READ isPressable WRITE setPressable NOTIFY pressableChanged FINAL)

public:
    explicit Pressable(QQuickItem* parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString& text);
    /// Held, and the finger still on it.
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
    /// Lets go, and clicks when the press still held.
    void release();

    QString m_text;
    bool m_pressed = false;
    bool m_hovered = false;
    bool m_pressable = true;
};

} // namespace lodestar

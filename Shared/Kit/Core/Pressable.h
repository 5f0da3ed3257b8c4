// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>

namespace lodestar
{

/// What a button is without its looks: pressed by finger, mouse, the space bar or a screen reader. The first screen is
/// made of these and not of Qt's template of a button, since importing one template registers every one of them, which
/// takes longer than that screen has.
class Pressable : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged FINAL)
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged FINAL)

public:
    explicit Pressable(QQuickItem* parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString& text);
    /// Held, and the finger still on it.
    bool isPressed() const { return m_pressed; }
    bool isHovered() const { return m_hovered; }
    /// Has the keyboard and came by it through the keyboard, so that a ring is due.
    bool hasVisualFocus() const { return m_visualFocus; }

    /// What a screen reader's press does.
    Q_INVOKABLE void accessiblePressAction();

Q_SIGNALS:
    void textChanged();
    void pressedChanged();
    void hoveredChanged();
    void visualFocusChanged();
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
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void setPressed(bool pressed);
    void setHovered(bool hovered);
    void setVisualFocus(bool visualFocus);
    /// Lets go, and clicks when the press still held.
    void release();

    QString m_text;
    bool m_pressed = false;
    bool m_hovered = false;
    bool m_visualFocus = false;
};

} // namespace lodestar

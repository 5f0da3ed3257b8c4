// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>
#include <QStringList>

namespace lodestar
{

/// An item that assistive programs press, focus and command. Give it role, name and states by the attached `Accessible`
/// as any item; what can be done with it, whether it is enabled and who has the keyboard it tells by itself, and of its
/// children only those that are shown. Main thread.
class AccessibleItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether there is the action Press.
    Q_PROPERTY(bool pressAction MEMBER m_pressAction NOTIFY actionsChanged FINAL)
    /// Further actions, by their translated names.
    Q_PROPERTY(QStringList commands MEMBER m_commands NOTIFY actionsChanged FINAL)
    /// Whether it can be given the keyboard although Tab passes it by.
    Q_PROPERTY(bool focusable MEMBER m_focusable NOTIFY focusableChanged FINAL)
    /// Reads its children from top to bottom, in whatever order they were made.
    Q_PROPERTY(bool readsDownwards MEMBER m_readsDownwards NOTIFY readsDownwardsChanged FINAL)
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged FINAL)

public:
    explicit AccessibleItem(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

    /// Has the keyboard and came by it through the keyboard, so that a ring is due.
    bool hasVisualFocus() const { return m_visualFocus; }
    /// Press first, then the commands. Empty while it is disabled.
    QStringList accessibleActions() const;
    /// Nothing while the item is disabled, hidden or covered by a modal layer, or has no such action.
    void doAccessibleAction(const QString& action);
    bool isAccessiblyFocusable() const;
    bool readsDownwards() const { return m_readsDownwards; }

Q_SIGNALS:
    void accessiblePressed();
    void accessibleCommand(int index);
    void actionsChanged();
    void focusableChanged();
    void readsDownwardsChanged();
    void visualFocusChanged();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void setPressAction(bool pressAction) { m_pressAction = pressAction; }

private:
    void setVisualFocus(bool visualFocus);

    bool m_pressAction = false;
    bool m_focusable = false;
    bool m_readsDownwards = false;
    bool m_visualFocus = false;
    QStringList m_commands;
};

/// An AccessibleItem that is a focus scope as well.
class AccessibleScope : public lodestar::AccessibleItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit AccessibleScope(QQuickItem* parent = nullptr) : AccessibleItem(parent) { setFlag(ItemIsFocusScope); }
};

/// What a popup holds that takes the whole window to itself. While one is visible an assistive program finds in its
/// window the layer that became visible last, and nothing else; nothing below can be pressed by it.
class ModalLayer : public lodestar::AccessibleScope
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ModalLayer(QQuickItem* parent = nullptr) : AccessibleScope(parent) {}
    ~ModalLayer() override;

    /// Null where there is none.
    static ModalLayer* topmost(const QQuickWindow* window);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
};

} // namespace lodestar

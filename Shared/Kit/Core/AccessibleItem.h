// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>
#include <QStringList>

namespace lodestar
{

/// An item that assistive programs can press, focus and command. Give the item role, name and states by the attached
/// `Accessible`, as any item. The item itself reports its actions, whether it is enabled, whether it has the keyboard
/// focus, and those of its children that are visible. Main thread.
class AccessibleItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Whether the item offers the action Press.
    Q_PROPERTY(bool pressAction MEMBER m_pressAction NOTIFY actionsChanged FINAL)
    /// Translated names of further actions.
    Q_PROPERTY(QStringList commands MEMBER m_commands NOTIFY actionsChanged FINAL)
    /// Whether the item can have the keyboard focus although Tab skips it.
    Q_PROPERTY(bool focusable MEMBER m_focusable NOTIFY focusableChanged FINAL)
    /// Whether the children are read from top to bottom, in whatever order they were made.
    Q_PROPERTY(bool readsDownwards MEMBER m_readsDownwards NOTIFY readsDownwardsChanged FINAL)
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged FINAL)

public:
    explicit AccessibleItem(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

    /// Whether the item has the keyboard focus and got it by the keyboard, so that a focus ring has to be shown.
    bool hasVisualFocus() const { return m_visualFocus; }
    /// The action Press first, then the commands. Empty while the item is disabled.
    QStringList accessibleActions() const;
    /// Does nothing while the item is disabled, hidden or covered by a modal layer, or when it has no such action.
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

/// The content of a popup that takes over its window. While one is visible, assistive programs find in the window only
/// the layer that became visible last, and can press nothing below it.
class ModalLayer : public lodestar::AccessibleScope
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ModalLayer(QQuickItem* parent = nullptr) : AccessibleScope(parent) {}
    ~ModalLayer() override;

    /// The layer of this window that became visible last; null where there is none.
    static ModalLayer* topmost(const QQuickWindow* window);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
};

} // namespace lodestar

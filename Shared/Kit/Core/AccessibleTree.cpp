// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/AccessibleTree.h"

#include "Kit/Core/AccessibleItem.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <vector>

namespace lodestar
{
namespace
{

using Items = std::vector<QQuickItem*>;

/// The item's attached `Accessible`; null for an item that the tree skips.
const QObject* attachedTo(const QQuickItem& item)
{
    for (const QObject* child : item.children()) {
        if (child->inherits("QQuickAccessibleAttached")) {
            return child->property("ignored").toBool() ? nullptr : child;
        }
    }
    return nullptr;
}

/// Collects the nearest visible descendants that have an `Accessible`.
void collect(const QQuickItem& from, Items& found)
{
    for (QQuickItem* child : from.childItems()) {
        if (!child->isVisible()) {
            continue;
        }
        if (attachedTo(*child) != nullptr) {
            found.push_back(child);
        } else {
            collect(*child, found);
        }
    }
}

QRect placeOf(const QQuickItem& item)
{
    // A field's bounding rectangle is that of its text alone.
    const QRect inWindow = item.mapRectToScene(QRectF({}, item.size())).toRect();
    return item.window() == nullptr ? inWindow : QRect(item.window()->mapToGlobal(inWindow.topLeft()), inWindow.size());
}

/// A node of the tree whose children are items.
class Node : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessibleInterface* child(int index) const override
    {
        const Items all = items();
        return index >= 0 && index < static_cast<int>(all.size())
                   ? QAccessible::queryAccessibleInterface(all[static_cast<std::size_t>(index)])
                   : nullptr;
    }
    int childCount() const override { return static_cast<int>(items().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const Items all = items();
        const auto found = std::find(all.begin(), all.end(), child->object());
        return found == all.end() ? -1 : static_cast<int>(found - all.begin());
    }
    /// The innermost child at a point; among overlapping children, the last.
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const Items all = items();
        for (auto item = all.rbegin(); item != all.rend(); ++item) {
            QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(*item);
            if (found != nullptr && found->rect().contains(x, y)) {
                QAccessibleInterface* const inner = found->childAt(x, y);
                return inner != nullptr ? inner : found;
            }
        }
        return nullptr;
    }

protected:
    virtual Items items() const = 0;
};

class WindowNode final : public Node
{
public:
    explicit WindowNode(QQuickWindow* window) : Node(window) {}

    QWindow* window() const override { return quickWindow(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    QAccessible::Role role() const override { return QAccessible::Window; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? quickWindow()->title() : QString();
    }
    QRect rect() const override
    {
        return {quickWindow()->x(), quickWindow()->y(), quickWindow()->width(), quickWindow()->height()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.active = quickWindow()->isActive();
        state.focused = state.active;
        state.invisible = !quickWindow()->isVisible();
        return state;
    }
    QAccessibleInterface* focusChild() const override
    {
        QQuickItem* item = quickWindow()->activeFocusItem();
        while (item != nullptr && attachedTo(*item) == nullptr) {
            item = item->parentItem();
        }
        return item != nullptr ? QAccessible::queryAccessibleInterface(item) : nullptr;
    }

protected:
    Items items() const override
    {
        if (ModalLayer* const layer = ModalLayer::topmost(quickWindow())) {
            return {layer};
        }
        Items found;
        collect(*quickWindow()->contentItem(), found);
        return found;
    }

private:
    QQuickWindow* quickWindow() const { return static_cast<QQuickWindow*>(object()); }
};

/// What the attached `Accessible` tells of an item.
class ItemNode : public Node, public QAccessibleActionInterface
{
public:
    explicit ItemNode(QQuickItem* item) : Node(item) {}

    bool isValid() const override { return Node::isValid() && item().window() != nullptr; }
    QWindow* window() const override { return item().window(); }
    QRect rect() const override { return placeOf(item()); }
    QAccessibleInterface* parent() const override
    {
        QQuickItem* above = isModal() ? nullptr : item().parentItem();
        while (above != nullptr && attachedTo(*above) == nullptr) {
            above = above->parentItem();
        }
        return above != nullptr ? QAccessible::queryAccessibleInterface(above)
                                : QAccessible::queryAccessibleInterface(item().window());
    }
    QAccessible::Role role() const override
    {
        const int role = told("role").toInt();
        return role == QAccessible::NoRole ? QAccessible::Client : static_cast<QAccessible::Role>(role);
    }
    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return told("name").toString();
        case QAccessible::Description:
            return told("description").toString();
        default:
            return {};
        }
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (item().window() == nullptr) {
            state.invisible = true;
            return state;
        }
        state.disabled = !item().isEnabled();
        state.invisible = !item().isVisible();
        state.offscreen = !placeOf(*item().window()->contentItem()).intersects(rect());
        state.focusable = isFocusable();
        state.focused = item().window()->activeFocusItem() == &item();
        state.modal = isModal();
        state.selectable = told("selectable").toBool();
        state.selected = told("selected").toBool();
        state.checkable = told("checkable").toBool();
        state.checked = told("checked").toBool();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return isFocusable() ? QStringList{setFocusAction()} : QStringList(); }
    void doAction(const QString& action) override
    {
        if (action == setFocusAction()) {
            item().forceActiveFocus(Qt::TabFocusReason);
        }
    }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

protected:
    QQuickItem& item() const { return *static_cast<QQuickItem*>(object()); }
    virtual bool isFocusable() const { return true; }
    Items items() const override { return {}; }

private:
    bool isModal() const { return qobject_cast<const ModalLayer*>(&item()) != nullptr; }
    QVariant told(const char* property) const
    {
        const QObject* const attached = attachedTo(item());
        return attached != nullptr ? attached->property(property) : QVariant();
    }
};

class ActionNode final : public ItemNode
{
public:
    explicit ActionNode(AccessibleItem* item) : ItemNode(item) {}

    QStringList actionNames() const override { return actionItem().accessibleActions() + ItemNode::actionNames(); }
    void doAction(const QString& action) override
    {
        ItemNode::doAction(action);
        actionItem().doAccessibleAction(action);
    }

protected:
    bool isFocusable() const override { return actionItem().isAccessiblyFocusable(); }
    Items items() const override
    {
        Items found;
        collect(item(), found);
        if (actionItem().readsDownwards()) {
            std::stable_sort(found.begin(), found.end(), [](const QQuickItem* one, const QQuickItem* other) {
                return one->mapToScene({}).y() < other->mapToScene({}).y();
            });
        }
        return found;
    }

private:
    AccessibleItem& actionItem() const { return static_cast<AccessibleItem&>(item()); }
};

class SecureFieldNode final : public ItemNode
{
public:
    using ItemNode::ItemNode;

    QAccessible::State state() const override
    {
        QAccessible::State state = ItemNode::state();
        state.editable = true;
        state.passwordEdit = true;
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return item().property("label").toString(); // The attached object of a password field tells no name.
        case QAccessible::Value:
            // Dots are given even while the field shows its text: that is meant only for the person before the screen.
            return item().property("passwordCharacter").toString().repeated(item().property("length").toInt());
        default:
            return ItemNode::text(kind);
        }
    }
};

QAccessibleInterface* describe(const QString& className, QObject* object)
{
    if (className == u"QQuickWindow") {
        return new WindowNode(static_cast<QQuickWindow*>(object));
    }
    if (className == u"lodestar::AccessibleItem") {
        return new ActionNode(static_cast<AccessibleItem*>(object));
    }
    return nullptr;
}

} // namespace

QAccessibleInterface* describeSecureField(QQuickItem& field)
{
    return new SecureFieldNode(&field);
}

void installAccessibleTree()
{
    QAccessible::installFactory(&describe); // Qt installs the factory only once, however often this is called
}

} // namespace lodestar

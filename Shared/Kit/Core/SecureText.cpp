// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/SecureText.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickItem>
#include <QQuickWindow>

namespace lodestar
{
namespace
{

class SecureFieldAccessible final : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit SecureFieldAccessible(QQuickItem* field) : QAccessibleObject(field) {}

    QWindow* window() const override { return field() != nullptr ? field()->window() : nullptr; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::EditableText; }

    QAccessibleInterface* parent() const override
    {
        const QQuickWindow* const shownIn = field() != nullptr ? field()->window() : nullptr;
        if (shownIn == nullptr) {
            return nullptr;
        }
        for (QQuickItem* item = field()->parentItem(); item != nullptr && item != shownIn->contentItem();
             item = item->parentItem()) {
            QAccessibleInterface* const candidate = QAccessible::queryAccessibleInterface(item);
            // An item that the tree skips has a description too, but its parent does not list it as a child.
            if (candidate != nullptr && candidate->parent() != nullptr &&
                candidate->parent()->indexOfChild(candidate) >= 0) {
                return candidate;
            }
        }
        return QAccessible::queryAccessibleInterface(field()->window());
    }

    QRect rect() const override
    {
        if (window() == nullptr) {
            return {};
        }
        const QRect inWindow = field()->mapRectToScene(field()->boundingRect()).toRect();
        return {window()->mapToGlobal(inWindow.topLeft()), inWindow.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.editable = true;
        state.passwordEdit = true;
        state.focusable = true;
        state.focused = field() != nullptr && field()->hasActiveFocus();
        state.disabled = field() == nullptr || !field()->isEnabled();
        state.invisible = field() == nullptr || !field()->isVisible();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (field() == nullptr) {
            return {};
        }
        switch (kind) {
        case QAccessible::Name:
            return field()->property("accessibleName").toString();
        case QAccessible::Value:
            // Dots are given even while the field shows its text: that is meant only for the person before the screen.
            return field()->property("passwordCharacter").toString().repeated(field()->property("length").toInt());
        default:
            return {};
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (field() != nullptr && action == setFocusAction()) {
            field()->forceActiveFocus(Qt::TabFocusReason);
        }
    }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    QQuickItem* field() const { return static_cast<QQuickItem*>(object()); }
};

} // namespace

void SecureText::hideFromAccessibility(QQuickItem* field) const
{
    // Any description that an event made during the field's creation has to go, or it would stay in use.
    if (QAccessibleInterface* const given = QAccessible::queryAccessibleInterface(field)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(given));
    }
    // The registry owns the description from here on and deletes it with the field.
    QAccessible::registerAccessibleInterface(new SecureFieldAccessible(field));
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

} // namespace lodestar

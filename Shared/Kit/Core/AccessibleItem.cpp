// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/AccessibleItem.h"

#include <QAccessible>

#include <algorithm>
#include <utility>
#include <vector>

namespace lodestar
{
namespace
{

/// The visible layers of all windows, in the order in which they became visible.
std::vector<ModalLayer*>& layers()
{
    static std::vector<ModalLayer*> layers;
    return layers;
}

} // namespace

QStringList AccessibleItem::accessibleActions() const
{
    QStringList actions;
    if (isEnabled()) {
        if (m_pressAction) {
            actions << QAccessibleActionInterface::pressAction();
        }
        actions << m_commands;
    }
    return actions;
}

void AccessibleItem::doAccessibleAction(const QString& action)
{
    const ModalLayer* const layer = ModalLayer::topmost(window());
    const bool isCovered = layer != nullptr && layer != this && !layer->isAncestorOf(this);
    if (isCovered || !isVisible() || !accessibleActions().contains(action)) {
        return;
    }
    if (action == QAccessibleActionInterface::pressAction()) {
        Q_EMIT accessiblePressed();
    } else {
        Q_EMIT accessibleCommand(static_cast<int>(m_commands.indexOf(action)));
    }
}

bool AccessibleItem::isAccessiblyFocusable() const
{
    return isEnabled() && (m_focusable || activeFocusOnTab());
}

void AccessibleItem::focusInEvent(QFocusEvent* event)
{
    QQuickItem::focusInEvent(event); // Qt tells screen readers here.
    const Qt::FocusReason reason = event->reason();
    setVisualFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                   reason == Qt::ShortcutFocusReason);
}

void AccessibleItem::focusOutEvent(QFocusEvent* event)
{
    QQuickItem::focusOutEvent(event);
    setVisualFocus(false);
}

void AccessibleItem::setVisualFocus(bool visualFocus)
{
    if (std::exchange(m_visualFocus, visualFocus) != visualFocus) {
        Q_EMIT visualFocusChanged();
    }
}

ModalLayer::~ModalLayer()
{
    std::erase(layers(), this);
}

ModalLayer* ModalLayer::topmost(const QQuickWindow* window)
{
    const auto found = std::find_if(layers().rbegin(), layers().rend(),
                                    [window](const ModalLayer* layer) { return layer->window() == window; });
    return window != nullptr && found != layers().rend() ? *found : nullptr;
}

void ModalLayer::componentComplete()
{
    AccessibleScope::componentComplete();
    if (isVisible() && std::find(layers().begin(), layers().end(), this) == layers().end()) {
        layers().push_back(this);
    }
}

void ModalLayer::itemChange(ItemChange change, const ItemChangeData& data)
{
    if (change == ItemVisibleHasChanged) {
        std::erase(layers(), this);
        if (data.boolValue) {
            layers().push_back(this);
        }
    }
    AccessibleScope::itemChange(change, data);
}

} // namespace lodestar

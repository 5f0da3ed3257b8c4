// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/TabBarController.h"

#include "Kit/Core/NavigationController.h"

#include <utility>

namespace lodestar
{

TabBarController::TabBarController(std::vector<TabBarItem> items) : m_items(std::move(items))
{
    for (const TabBarItem& item : m_items) {
        item.controller->m_tabBarController = this;
    }
}

TabBarController::~TabBarController()
{
    for (const TabBarItem& item : m_items) {
        item.controller->m_tabBarController = nullptr;
    }
}

void TabBarController::setSelectedIndex(int index)
{
    if (index == m_selectedIndex || controllerAt(index) == nullptr) {
        return;
    }
    controllerAt(m_selectedIndex)->endAppearance();
    m_selectedIndex = index;
    if (isViewLoaded()) {
        controllerAt(index)->loadViewIfNeeded();
    }
    Q_EMIT selectedIndexChanged();
    if (isInWindow() && m_selectedIndex == index) {
        controllerAt(index)->beginAppearance();
    }
}

void TabBarController::tap(int index)
{
    if (index != m_selectedIndex) {
        setSelectedIndex(index);
    } else if (auto* const stack = qobject_cast<NavigationController*>(controllerAt(index))) {
        stack->popToRoot();
    }
}

void TabBarController::setBarHidden(bool hidden)
{
    if (m_isBarHidden != hidden) {
        m_isBarHidden = hidden;
        Q_EMIT barHiddenChanged();
    }
}

QColor TabBarController::selectedImageTintColor() const
{
    return TabBarAppearance::appearance().selectedImageTintColor;
}

QString TabBarController::titleAt(int index) const
{
    return controllerAt(index) != nullptr ? m_items[static_cast<std::size_t>(index)].title : QString();
}

QString TabBarController::imageNameAt(int index) const
{
    return controllerAt(index) != nullptr ? m_items[static_cast<std::size_t>(index)].imageName : QString();
}

ViewController* TabBarController::controllerAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].controller.get() : nullptr;
}

void TabBarController::setBadge(int index, TabBadge badge)
{
    if (controllerAt(index) != nullptr && m_badges[index] != badge) {
        m_badges[index] = std::move(badge);
        Q_EMIT badgeChanged(index);
    }
}

TabBadge TabBarController::badge(int index) const
{
    const auto found = m_badges.find(index);
    return found != m_badges.end() ? found->second : TabBadge();
}

QString TabBarController::spokenAt(int index) const
{
    const QString spoken = badge(index).spoken;
    return spoken.isEmpty() ? titleAt(index) : spoken;
}

TabBarAppearance& TabBarAppearance::appearance()
{
    static TabBarAppearance appearance;
    return appearance;
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/NavigationController.h"

#include "Kit/Core/SpansColumns.h"
#include "Platform/Queues/MainQueue.h"

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

bool spansColumns(const ViewController& screen)
{
    const auto* const spanning = dynamic_cast<const SpansColumns*>(&screen);
    return spanning != nullptr && spanning->spansColumns();
}

} // namespace

void NavigationController::setStackOf(ViewController& screen, NavigationController* stack)
{
    screen.m_navigationController = stack;
    screen.m_container = stack;
}

NavigationController::NavigationController(std::shared_ptr<ViewController> root)
{
    setStackOf(*root, this);
    m_stack.push_back(std::move(root));
}

NavigationController::~NavigationController()
{
    // A screen may outlive its stack when others hold it.
    for (const auto& controller : m_stack) {
        setStackOf(*controller, nullptr);
    }
}

void NavigationController::pushViewController(std::shared_ptr<ViewController> controller, Animated animated)
{
    ViewController* shown = controller.get();
    setStackOf(*shown, this);
    m_stack.push_back(std::move(controller));
    shown->loadViewIfNeeded();
    Q_EMIT pushed(shown, animated == Animated::Yes);
    Q_EMIT stackChanged();
    updateAppearance();
}

void NavigationController::open(const ViewController& from, std::shared_ptr<ViewController> controller)
{
    const int start = startColumn();
    if (start >= 0 && start < depth() - 1 && viewControllerAt(start) == &from && !spansColumns(*controller)) {
        replaceTop(std::move(controller));
    } else {
        pushViewController(std::move(controller), Animated::Yes);
    }
}

void NavigationController::replaceTop(std::shared_ptr<ViewController> controller)
{
    ViewController* const shown = controller.get();
    const std::shared_ptr<ViewController> previous = std::exchange(m_stack.back(), std::move(controller));
    previous->endAppearance();
    setStackOf(*previous, nullptr);
    setStackOf(*shown, this);
    shown->loadViewIfNeeded();
    Q_EMIT replaced(shown);
    Q_EMIT stackChanged();
    updateAppearance();
    // As for a popped screen.
    MainQueue::shared().async([keep = previous] {});
}

std::shared_ptr<ViewController> NavigationController::popViewController(Animated animated)
{
    if (m_stack.size() < 2) {
        return nullptr;
    }
    std::shared_ptr<ViewController> controller = std::move(m_stack.back());
    m_stack.pop_back();
    controller->endAppearance();
    setStackOf(*controller, nullptr);
    Q_EMIT popped(controller.get(), animated == Animated::Yes);
    Q_EMIT stackChanged();
    updateAppearance();
    // A method of the popped screen may be on the call stack, so the screen is kept until that method has returned.
    MainQueue::shared().async([keep = controller] {});
    return controller;
}

void NavigationController::popToRoot()
{
    while (m_stack.size() > 2) {
        const auto covered = m_stack.end() - 2;
        const std::shared_ptr<ViewController> controller = *covered;
        m_stack.erase(covered);
        controller->endAppearance(); // it may have been seen in the start column
        setStackOf(*controller, nullptr);
        Q_EMIT removed(depth() - 1);
        MainQueue::shared().async([keep = controller] {});
    }
    pop();
}

const ViewController* NavigationController::screenBelow(const ViewController& screen) const
{
    const auto above = std::ranges::find(m_stack, &screen, &std::shared_ptr<ViewController>::get);
    return above == m_stack.begin() || above == m_stack.end() ? nullptr : std::prev(above)->get();
}

void NavigationController::goBackFrom(const ViewController& screen)
{
    // The way back of both columns stands in the start column.
    const int start = startColumn();
    if (topViewController() == &screen || (start >= 0 && viewControllerAt(start) == &screen)) {
        pop();
    }
}

ViewController* NavigationController::viewControllerAt(int index) const
{
    return index >= 0 && index < depth() ? m_stack[static_cast<std::size_t>(index)].get() : nullptr;
}

void NavigationController::setRoomForTwo(bool hasRoom)
{
    if (std::exchange(m_hasRoomForTwo, hasRoom) != hasRoom) {
        columnsDidChange();
    }
}

void NavigationController::columnsDidChange()
{
    Q_EMIT columnsChanged();
    updateAppearance();
}

int NavigationController::startColumn() const
{
    // Stacks outside the tabs, such as feedback's, are no choice among things to look at.
    if (!m_hasRoomForTwo || tabBarController() == nullptr || spansColumns(*m_stack.back())) {
        return -1;
    }
    const int below = depth() - 2;
    return below < 0 ? 0 : spansColumns(*m_stack[static_cast<std::size_t>(below)]) ? -1 : below;
}

bool NavigationController::isSeen(const ViewController& screen) const
{
    return &screen == topViewController() || (startColumn() >= 0 && viewControllerAt(startColumn()) == &screen);
}

void NavigationController::updateAppearance()
{
    // A screen may push or pop in its callbacks; the nested call has then already brought the stack up to date.
    const std::vector<std::shared_ptr<ViewController>> stack = m_stack;
    for (const auto& controller : stack) {
        if (!isInWindow() || !isSeen(*controller)) {
            controller->endAppearance();
        }
    }
    for (const auto& controller : stack) {
        if (isInWindow() && isSeen(*controller)) {
            controller->beginAppearance();
        }
    }
}

} // namespace lodestar

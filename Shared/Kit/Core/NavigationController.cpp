// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/NavigationController.h"

#include "Platform/Queues/MainQueue.h"

#include <algorithm>
#include <utility>

namespace lodestar
{

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
    if (topViewController() == &screen) {
        pop();
    }
}

ViewController* NavigationController::viewControllerAt(int index) const
{
    return index >= 0 && index < depth() ? m_stack[static_cast<std::size_t>(index)].get() : nullptr;
}

void NavigationController::updateAppearance()
{
    // A screen may push or pop in its callbacks; the nested call has then already brought the stack up to date.
    const std::vector<std::shared_ptr<ViewController>> stack = m_stack;
    for (const auto& controller : stack) {
        if (!isInWindow() || controller != m_stack.back()) {
            controller->endAppearance();
        }
    }
    if (isInWindow()) {
        const std::shared_ptr<ViewController> top = m_stack.back();
        top->beginAppearance();
    }
}

} // namespace lodestar

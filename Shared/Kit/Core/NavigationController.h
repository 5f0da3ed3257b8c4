// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

#include <vector>

namespace lodestar
{

enum class Animated { No, Yes };

/// A stack of screens; the last one is shown. A NavigationStack draws the stack, so that navigation itself needs no
/// window.
class NavigationController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(int depth READ depth NOTIFY stackChanged)

public:
    explicit NavigationController(std::shared_ptr<ViewController> root);
    ~NavigationController() override;

    /// Loads and shows the controller, and keeps it until it is popped.
    void pushViewController(std::shared_ptr<ViewController> controller, Animated animated);
    /// Takes the last screen off, but never the root. Returns the popped screen, or null.
    std::shared_ptr<ViewController> popViewController(Animated animated);
    Q_INVOKABLE void pop() { popViewController(Animated::Yes); }
    /// Slides the last screen away and shows the root; the screens between are removed unseen.
    void popToRoot();

    ViewController* topViewController() const { return m_stack.back().get(); }
    ViewController* rootViewController() const { return m_stack.front().get(); }
    int depth() const { return static_cast<int>(m_stack.size()); }
    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return m_stack; }
    Q_INVOKABLE lodestar::ViewController* viewControllerAt(int index) const;

Q_SIGNALS:
    void pushed(lodestar::ViewController* controller, bool animated);
    /// Emitted before the controller is released. A scene that slides away outlives this; it keeps the controller alive
    /// itself (as SceneHost does).
    void popped(lodestar::ViewController* controller, bool animated);
    /// A screen below others was removed. Emitted before its controller is released.
    void removed(int index);
    void stackChanged();

protected:
    void viewDidLoad() override { topViewController()->loadViewIfNeeded(); }
    void viewDidAppear() override { updateAppearance(); }
    void viewDidDisappear() override { updateAppearance(); }
    const ViewController* screenBelow(const ViewController& screen) const override;
    void goBackFrom(const ViewController& screen) override;

private:
    static void setStackOf(ViewController& screen, NavigationController* stack);
    void updateAppearance();
    std::vector<std::shared_ptr<ViewController>> m_stack;
};

} // namespace lodestar

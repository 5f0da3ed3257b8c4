// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

#include <vector>

namespace lodestar
{

enum class Animated { No, Yes };

/// A stack of screens; the last one is shown. A NavigationStack draws the stack, so that navigation itself needs no
/// window.
///
/// Where there is room, a tab's last two screens stand side by side: the upper in the end column, the one below it in
/// the start column. A screen appears when it comes into sight and disappears when it goes out of sight, so the screen
/// in the start column does neither while others are opened beside it: its clocks run on, and it is not told of a
/// return that nobody made. The screen that is opened is loaded and appears exactly as on a phone. When the room grows,
/// the screen below the last appears; when it shrinks, that screen disappears.
class NavigationController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(int depth READ depth NOTIFY stackChanged)
    /// Whether there is room for two columns. The view that draws the stack writes this.
    Q_PROPERTY(bool roomForTwo READ hasRoomForTwo WRITE setRoomForTwo NOTIFY columnsChanged)

public:
    explicit NavigationController(std::shared_ptr<ViewController> root);
    ~NavigationController() override;

    /// Loads and shows the controller, and keeps it until it is popped.
    void pushViewController(std::shared_ptr<ViewController> controller, Animated animated);
    /// The same, for what a screen opens. Opened from the start column, the controller takes the place of the screen in
    /// the end column, unless the controller spans both.
    void open(const ViewController& from, std::shared_ptr<ViewController> controller);
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

    bool hasRoomForTwo() const { return m_hasRoomForTwo; }
    void setRoomForTwo(bool hasRoom);
    /// A screen that does not always span the columns has begun or ceased to.
    void columnsDidChange();
    /// The index of the screen in the start column: the last screen's while it is the only one and the end column is
    /// empty, otherwise that of the screen below it. -1 when one screen takes the whole width.
    int startColumn() const;
    /// Whether the screen is drawn while the stack is.
    bool isSeen(const ViewController& screen) const;

Q_SIGNALS:
    void pushed(lodestar::ViewController* controller, bool animated);
    /// Emitted before the controller is released. A scene that slides away outlives this; it keeps the controller alive
    /// itself (as SceneHost does).
    void popped(lodestar::ViewController* controller, bool animated);
    /// A screen below others was removed. Emitted before its controller is released.
    void removed(int index);
    /// The last screen gave way to this one, without motion. Emitted as `popped` is.
    void replaced(lodestar::ViewController* controller);
    void stackChanged();
    void columnsChanged();

protected:
    void viewDidLoad() override { topViewController()->loadViewIfNeeded(); }
    void viewDidAppear() override { updateAppearance(); }
    void viewDidDisappear() override { updateAppearance(); }
    const ViewController* screenBelow(const ViewController& screen) const override;
    void goBackFrom(const ViewController& screen) override;

private:
    static void setStackOf(ViewController& screen, NavigationController* stack);
    void replaceTop(std::shared_ptr<ViewController> controller);
    void updateAppearance();
    std::vector<std::shared_ptr<ViewController>> m_stack;
    bool m_hasRoomForTwo = false;
};

} // namespace lodestar

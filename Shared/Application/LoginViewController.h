// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

#include <functional>

namespace lodestar
{

/// The screen in front of everything: it passes straight on to the main interface unless a passcode is required.
class LoginViewController : public ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The storyboard makes it.")

public:
    /// Replaces the window's screen by the one given; the storyboard's host sets it.
    using RootSwitch = std::function<void(std::shared_ptr<ViewController>)>;

    explicit LoginViewController(RootSwitch showRoot) : m_showRoot(std::move(showRoot)) {}

    /// Follows the segue "showMainView": builds a new main interface in this screen's place.
    void performShowMainView();

protected:
    void viewDidAppear() override;

private:
    RootSwitch m_showRoot;
};

} // namespace lodestar

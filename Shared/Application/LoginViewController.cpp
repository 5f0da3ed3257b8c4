// SPDX-License-Identifier: Apache-2.0
#include "Application/LoginViewController.h"

#include "Kit/Core/Storyboard.h"
#include "Platform/UserDefaults.h"

namespace lodestar
{

void LoginViewController::viewDidAppear()
{
    if (!UserDefaults::standard().boolForKey("requirePassword")) {
        performShowMainView();
    }
}

void LoginViewController::performShowMainView()
{
    // The switch lets go of this screen.
    const auto keep = shared_from_this();
    m_showRoot(Storyboard::main().instantiateViewController("mainView"));
}

} // namespace lodestar

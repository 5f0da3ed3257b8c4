// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/LoginViewController.h"

namespace lodestar
{

/// Fills the storyboard "Main" with every scene there is. Once, before the first screen is made.
void registerMainStoryboard(LoginViewController::RootSwitch showRoot);

} // namespace lodestar

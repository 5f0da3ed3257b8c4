// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/LoginViewController.h"

namespace lodestar
{

/// Registers every scene of the storyboard "Main". Call it once, before the first screen is made.
void registerMainStoryboard(LoginViewController::RootSwitch showRoot);

} // namespace lodestar

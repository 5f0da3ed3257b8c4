// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/PagedIntro.h"

#include <memory>

namespace lodestar
{

class ViewController;

/// Told when the tour has been finished or skipped.
using IntroViewDelegate = PagedIntroDelegate;

/// The tour: six pages, one picture each.
class IntroView
{
public:
    IntroView() = default;

    /// Builds the tour and lays it over the whole of the screen, usually the tab bar controller. Main thread.
    static void showIntroViewInView(ViewController& view, std::weak_ptr<IntroViewDelegate> delegate);
};

} // namespace lodestar

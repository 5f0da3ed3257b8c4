// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/PagedIntro.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

namespace lodestar
{

class ViewController;

/// The tour: six pages, one picture each.
class IntroView
{
    Q_DECLARE_TR_FUNCTIONS(IntroView)

public:
    IntroView() = default;

    /// The pages in order. A page whose picture is missing has none.
    static std::vector<IntroPage> pages();

    /// Builds the tour and lays it over the whole view, usually the tab bar controller's. Main thread.
    static void showIntroViewInView(ViewController& view, std::weak_ptr<PagedIntroDelegate> delegate);
};

} // namespace lodestar

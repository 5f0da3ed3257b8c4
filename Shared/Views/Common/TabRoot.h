// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"

#include <utility>

namespace lodestar
{

/// The first screen of the tab whose first screen is such a controller, and the tab's number; null and -1 for none.
template <typename Controller>
std::pair<Controller*, int> rootOf(const TabBarController& tabs)
{
    for (int index = 0; index < tabs.count(); ++index) {
        const auto* const stack = qobject_cast<NavigationController*>(tabs.controllerAt(index));
        if (auto* const root = qobject_cast<Controller*>(stack != nullptr ? stack->rootViewController() : nullptr)) {
            return {root, index};
        }
    }
    return {nullptr, -1};
}

} // namespace lodestar

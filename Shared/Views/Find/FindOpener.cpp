// SPDX-License-Identifier: Apache-2.0
#include "Views/Find/FindOpener.h"

#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Views/Find/OpenFind.h"

namespace lodestar
{
namespace
{

bool isCovered(const ViewController& screen)
{
    return screen.semiModal() != nullptr || screen.intro() != nullptr;
}

} // namespace

void FindOpener::openOver(ViewController* screen)
{
    if (screen != nullptr) {
        openFind(*screen, {});
    }
}

void FindOpener::openIn(ViewController* root)
{
    const auto* const tabs = qobject_cast<TabBarController*>(root);
    if (tabs == nullptr || isCovered(*tabs)) {
        return;
    }
    auto* const stack = qobject_cast<NavigationController*>(tabs->controllerAt(tabs->selectedIndex()));
    if (stack != nullptr && !isCovered(*stack) && !isCovered(*stack->topViewController())) {
        openFind(*stack->topViewController(), {});
    }
}

} // namespace lodestar

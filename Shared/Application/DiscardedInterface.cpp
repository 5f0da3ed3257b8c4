// SPDX-License-Identifier: Apache-2.0
#include "Application/DiscardedInterface.h"

#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace lodestar
{
namespace
{

void dismissSheets(ViewController& controller)
{
    if (const auto* const tabs = qobject_cast<TabBarController*>(&controller)) {
        for (int index = 0; index < tabs->count(); ++index) {
            dismissSheets(*tabs->controllerAt(index));
        }
    } else if (const auto* const stack = qobject_cast<NavigationController*>(&controller)) {
        for (const auto& screen : stack->viewControllers()) {
            dismissSheets(*screen);
        }
    }
    controller.dismissSemiModalView();
}

/// Popups go with their scene, but only when the running event is over, and a frame may be drawn before.
void hidePopups(const QQuickWindow& window)
{
    for (const QQuickItem* layer : window.contentItem()->childItems()) {
        if (layer->inherits("QQuickOverlay")) {
            for (QQuickItem* popup : layer->childItems()) {
                popup->setVisible(false);
            }
        }
    }
}

} // namespace

void discardInterface(ViewController& root, QQuickWindow& window)
{
    dismissSheets(root);
    hidePopups(window);
}

} // namespace lodestar

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

/// Hides the window's popups. A popup is destroyed with its scene, but only after the running event, and a frame may be
/// drawn before that.
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

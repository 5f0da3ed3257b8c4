// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQuickWindow;

namespace lodestar
{

class ViewController;

/// Takes down what a screen and those below it have put up: their sheets, which keep their screens alive, and whatever
/// alert or action sheet is drawn in the window, at once and without motion. For an interface that is being replaced as
/// a whole. Main thread.
void discardInterface(ViewController& root, QQuickWindow& window);

} // namespace lodestar

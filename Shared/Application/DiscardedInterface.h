// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQuickWindow;

namespace lodestar
{

class ViewController;

/// Takes down, at once and without motion, the sheets of a screen and of those below it, and any alert or action sheet
/// that the window shows. Sheets keep their screens alive, so call this when an interface is replaced as a whole. Main
/// thread.
void discardInterface(ViewController& root, QQuickWindow& window);

} // namespace lodestar

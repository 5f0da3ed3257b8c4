// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

class QQuickWindow;

namespace lodestar
{

/// The window's picture in device pixels, with everything covered that `Privacy` marks and every field that hides its
/// text. The covers are part of the scene while the picture is drawn, so nothing of what they hide is in the picture at
/// any time, and what lies over them, a sheet for one, stays over them. Null when the window cannot be drawn.
QImage grabCovered(QQuickWindow& window);

} // namespace lodestar

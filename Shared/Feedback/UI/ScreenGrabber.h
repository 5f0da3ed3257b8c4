// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

class QQuickWindow;

namespace lodestar
{

/// The window's picture in device pixels. Everything that `Privacy` marks, and every field that hides its text, is
/// covered. The covers are part of the scene while the picture is drawn: what they hide is never in the picture, and
/// what lies over them, such as a sheet, stays over them. Null when the window cannot be drawn.
QImage grabCovered(QQuickWindow& window);

} // namespace lodestar

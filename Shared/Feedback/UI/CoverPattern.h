// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>

class QPainter;

namespace lodestar
{

/// Paints the hatched bar that hides what is beneath: opaque, so that nothing shows through. `unit` is the length of a
/// point in the painter's units.
void paintCover(QPainter& painter, const QRectF& rect, double unit);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>

class QPainter;

namespace lodestar
{

/// Paints the opaque, hatched bar that hides everything beneath. `unit` is the length of a point in the painter's
/// units.
void paintCover(QPainter& painter, const QRectF& rect, double unit);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotSpace.h"

#include <QSizeF>

#include <cmath>

namespace lodestar
{
namespace
{

/// Zooms one direction: the point at `around` keeps its place unless the view would then leave the whole.
void zoom(double& start, double& length, double factor, double around, double smallest)
{
    if (!std::isfinite(factor) || factor <= 0 || !std::isfinite(around) || !std::isfinite(start)) {
        return;
    }
    const double target = std::clamp(length / factor, std::clamp(smallest, 0.0, 1.0), 1.0);
    start = std::clamp(start + (length - target) * around, 0.0, 1 - target);
    length = target;
}

PlotInterval part(const PlotInterval& whole, double start, double length)
{
    return {whole.from + start * whole.length(), whole.from + (start + length) * whole.length()};
}

} // namespace

PlotViewport PlotViewport::zoomed(double factorX, double factorY, QPointF around, QSizeF smallest) const
{
    PlotViewport result = *this;
    zoom(result.x, result.width, factorX, around.x(), smallest.width());
    zoom(result.y, result.height, factorY, around.y(), smallest.height());
    return result;
}

PlotViewport PlotViewport::moved(double byX, double byY) const
{
    PlotViewport result = *this;
    if (std::isfinite(byX) && std::isfinite(byY)) {
        result.x = std::clamp(x + byX * width, 0.0, 1 - width);
        result.y = std::clamp(y + byY * height, 0.0, 1 - height);
    }
    return result;
}

PlotViewport PlotViewport::towards(const PlotViewport& other, double progress) const
{
    if (progress >= 1) {
        return other;
    }
    return {std::lerp(x, other.x, progress), std::lerp(y, other.y, progress), std::lerp(width, other.width, progress),
            std::lerp(height, other.height, progress)};
}

PlotExtent PlotViewport::of(const PlotExtent& whole) const
{
    return {part(whole.x, x, width), part(whole.y, y, height)};
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>
#include <QRectF>

#include <algorithm>

namespace lodestar
{

/// A closed interval; empty while `from` is above `to`.
struct PlotInterval {
    double from = 0;
    double to = -1;

    bool isEmpty() const { return !(from <= to); }
    double length() const { return to - from; }
    bool contains(double value) const { return value >= from && value <= to; }
    void include(double value)
    {
        const bool first = isEmpty();
        from = first ? value : std::min(from, value);
        to = first ? value : std::max(to, value);
    }
    void include(const PlotInterval& other)
    {
        if (!other.isEmpty()) {
            include(other.from);
            include(other.to);
        }
    }

    bool operator==(const PlotInterval&) const = default;
};

/// A range of x indices and a range of values.
struct PlotExtent {
    PlotInterval x;
    PlotInterval y;

    bool operator==(const PlotExtent&) const = default;
};

/// Maps x indices and values to points of the chart. Values rise upwards. Neither direction is ever mirrored: time
/// runs to the right in every language.
struct PlotTransform {
    QRectF plot;
    PlotExtent visible; ///< Neither interval may have a length of 0.

    double toX(double index) const
    {
        return plot.left() + (index - visible.x.from) / visible.x.length() * plot.width();
    }
    double toY(double value) const
    {
        return plot.bottom() - (value - visible.y.from) / visible.y.length() * plot.height();
    }
    double toIndex(double x) const { return visible.x.from + (x - plot.left()) / plot.width() * visible.x.length(); }

    bool operator==(const PlotTransform&) const = default;
};

/// The part of the plot that is in view, in shares of the whole: (0, 0) is the plot's lower left, 1 × 1 is all of it.
struct PlotViewport {
    double x = 0;
    double y = 0;
    double width = 1;
    double height = 1;

    bool isZoomedX() const { return width < 1; }
    bool isZoomedY() const { return height < 1; }
    bool isZoomed() const { return isZoomedX() || isZoomedY(); }

    /// This part zoomed by factors around a point, which is in shares of this part. The result stays within the whole
    /// and is at least as large as `smallest`.
    PlotViewport zoomed(double factorX, double factorY, QPointF around, QSizeF smallest) const;
    /// This part moved by shares of itself; the result stays within the whole.
    PlotViewport moved(double byX, double byY) const;
    /// A part between this and another one, for a progress from 0 to 1.
    PlotViewport towards(const PlotViewport& other, double progress) const;
    /// The part of an extent that is in view.
    PlotExtent of(const PlotExtent& whole) const;

    bool operator==(const PlotViewport&) const = default;
};

} // namespace lodestar

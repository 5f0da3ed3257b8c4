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

/// X indices and values, of data or of what of them is to be seen.
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

/// The part of the whole plot that is to be seen, as shares of it: (0, 0) is its lower left, 1 × 1 all of it.
struct PlotViewport {
    double x = 0;
    double y = 0;
    double width = 1;
    double height = 1;

    bool isZoomedX() const { return width < 1; }
    bool isZoomedY() const { return height < 1; }
    bool isZoomed() const { return isZoomedX() || isZoomedY(); }

    /// Enlarged by factors around a point, given as shares of this part; within the whole and no smaller than the
    /// smallest width and height.
    PlotViewport zoomed(double factorX, double factorY, QPointF around, QSizeF smallest) const;
    /// Shifted by shares of this part, within the whole.
    PlotViewport moved(double byX, double byY) const;
    /// On the way to another, 0 to 1.
    PlotViewport towards(const PlotViewport& other, double progress) const;
    /// The visible part of an extent.
    PlotExtent of(const PlotExtent& whole) const;

    bool operator==(const PlotViewport&) const = default;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPointF>
#include <QRectF>
#include <QStringList>

#include <optional>

class QPainter;

namespace lodestar
{

struct PieSlice;

/// Contrast of two opaque colours, 1 to 21.
double contrastRatio(const QColor& first, const QColor& second);

/// Writes values into slices: centred between the radii, moved outward where a slice is narrow, left off where it has
/// no room at all, and outlined where the slice is too light for the text.
class PieValueText
{
public:
    PieValueText(const QFont& font, const QColor& color);

    void draw(QPainter& painter, const QStringList& lines, const PieSlice& slice, double innerRadius,
              double outerRadius, const QColor& sliceColor) const;
    /// Where the middle of the lines goes; nothing when they do not fit.
    std::optional<QPointF> position(const QStringList& lines, const PieSlice& slice, double innerRadius,
                                    double outerRadius) const;

private:
    QSizeF sizeOf(const QStringList& lines) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    QColor m_color;
};

} // namespace lodestar

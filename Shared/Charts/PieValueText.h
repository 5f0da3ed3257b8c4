// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QStringList>

#include <optional>

class QPainter;

namespace lodestar
{

struct PieSlice;

/// Contrast of two opaque colours, 1 to 21.
double contrastRatio(const QColor& first, const QColor& second);

/// Writes values into slices: centred between the radii, moved outward and then made smaller where a slice is narrow,
/// left off where it has no room at all. Where the slice is too near to the text's colour, the value gets a ground.
class PieValueText
{
public:
    struct Place {
        QFont font;
        QPointF middle;
        QSizeF size; ///< of the capitals, without the ground
    };

    /// The font has its size in pixels.
    PieValueText(const QFont& font, const QColor& color);

    void draw(QPainter& painter, const QStringList& lines, const PieSlice& slice, double innerRadius,
              double outerRadius, const QColor& sliceColor) const;
    /// Where the lines go, with that much around them; nothing when they do not fit.
    std::optional<Place> place(const QStringList& lines, const PieSlice& slice, double innerRadius, double outerRadius,
                               const QSizeF& padding = {0, 0}) const;
    /// What the text needs behind it on a slice of that colour; invalid for nothing.
    QColor groundOn(const QColor& sliceColor) const;

private:
    static QSizeF sizeOf(const QStringList& lines, const QFont& font);

    QFont m_font;
    QColor m_color;
};

} // namespace lodestar

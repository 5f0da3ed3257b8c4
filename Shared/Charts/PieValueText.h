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

/// One slice after layout. Angles are in degrees clockwise from 12 o'clock.
struct PieSlice {
    qsizetype entry = 0; ///< Position among the data set's entries.
    double start = 0;
    double sweep = 0;
    double gap = 0; ///< Half the gap at either side, in points; 0 for the only slice.
    QPointF center; ///< Centre of the pie; moved outward for a highlighted slice.
};

/// Contrast ratio of two opaque colours, 1 to 21.
double contrastRatio(const QColor& first, const QColor& second);

/// Writes values into slices. A value is centred between the radii; in a narrow slice it is moved outward and then made
/// smaller; without room it is left off. Where the slice's colour is too near to the text's, the value gets a plate.
class PieValueText
{
public:
    struct Place {
        QFont font;
        QPointF middle;
        QSizeF size; ///< of the capitals, without the plate
    };

    /// The font's size must be in pixels.
    PieValueText(const QFont& font, const QColor& color);

    void draw(QPainter& painter, const QStringList& lines, const PieSlice& slice, double innerRadius,
              double outerRadius, const QColor& sliceColor) const;
    /// Where the lines go with this padding around them; nothing when they do not fit.
    std::optional<Place> place(const QStringList& lines, const PieSlice& slice, double innerRadius, double outerRadius,
                               const QSizeF& padding = {0, 0}) const;
    /// Colour of the plate behind the text on a slice of this colour; invalid when no plate is needed.
    QColor groundOn(const QColor& sliceColor) const;

private:
    static QSizeF sizeOf(const QStringList& lines, const QFont& font);

    QFont m_font;
    QColor m_color;
};

} // namespace lodestar

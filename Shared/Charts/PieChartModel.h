// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartModel.h"

namespace lodestar
{

/// Everything that a pie is drawn from: settings, data and highlights. Radii are fractions of the pie's radius.
struct PieChartModel : ChartModel {
    bool usePercentValues = false; ///< Slices show their share of the total, 0 to 100, in place of their value.
    bool drawHole = true;
    bool holeTransparent = true; ///< False fills the hole with the card's colour.
    double holeRadiusPercent = 0.5;
    double transparentCircleRadiusPercent = 0.55; ///< Outer end of the pale band around the hole.
    double rotationAngle = 0; ///< Degrees clockwise from 12 o'clock to the start of the first slice.
    bool rotationEnabled = true;
    bool rotationWithTwoFingers = false; ///< Two fingers turn the pie as well as one.
    bool drawSliceText = true;           ///< Slices show their label above their value.
    PieChartData data;

    /// The text for an entry's value in its slice.
    QString valueText(const ChartEntry& entry) const;
    bool isHighlighted(const ChartEntry& entry) const;
};

} // namespace lodestar

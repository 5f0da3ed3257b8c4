// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartModel.h"

namespace lodestar
{

/// Everything that a pie is drawn from: its settings, data and highlights. Radii are fractions of the pie's radius.
struct PieChartModel : ChartModel {
    bool usePercentValues = false; ///< Slices show their share of the total, 0 to 100, instead of their value.
    bool drawHole = true;
    bool holeTransparent = true; ///< Otherwise the hole is filled with the card's colour.
    double holeRadiusPercent = 0.5;
    double transparentCircleRadiusPercent = 0.55; ///< Outer end of the pale band around the hole.
    double rotationAngle = 0;                     ///< Degrees clockwise from 12 o'clock to the first slice.
    bool rotationEnabled = true;
    bool rotationWithTwoFingers = false; ///< Two fingers turn the pie as well.
    bool drawSliceText = true;           ///< Slices show their label above their value.
    PieChartData data;

    /// An entry's value as a slice shows it.
    QString valueText(const ChartEntry& entry) const;
    bool isHighlighted(const ChartEntry& entry) const;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>

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

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartData.h"
#include "Charts/Legend.h"

namespace lodestar
{

/// What every chart is drawn from, of whatever kind.
struct ChartModel {
    QString descriptionText; ///< In the lower end corner; empty for none.
    Legend legend;
    QList<Highlight> highlights;
};

} // namespace lodestar

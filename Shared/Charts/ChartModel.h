// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Charts/ChartData.h"
#include "Charts/Legend.h"

namespace lodestar
{

/// The settings that the model of every chart has.
struct ChartModel {
    QString descriptionText; ///< Drawn in the lower end corner; empty for none.
    Legend legend;
    QList<Highlight> highlights;
};

} // namespace lodestar

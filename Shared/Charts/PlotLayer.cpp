// SPDX-License-Identifier: Apache-2.0
#include "Charts/PlotLayer.h"

namespace lodestar
{

PlotExtent PlotLayer::extent() const
{
    PlotExtent extent;
    for (qsizetype i = 0; i < dataSetCount(); ++i) {
        extent.x.include(series(i).extent().x);
        extent.y.include(series(i).extent().y);
    }
    return extent;
}

} // namespace lodestar

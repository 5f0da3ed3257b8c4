// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Inventory/Metrics/MetricsTimeline.h"

namespace lodestar
{

/// The samples of a timeline in their order, with their times in UTC and in the process's zone, both empty for a sample
/// without a time. Memory is in gigabytes of 1000 MB. Any thread.
Table metricsTable(const MetricsTimeline& timeline, MetricsSegment segment);

} // namespace lodestar

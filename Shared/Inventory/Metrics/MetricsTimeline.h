// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Metrics/MetricsReduction.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace lodestar
{

/// The three figures of a sample, in the order in which every chart and table shows them.
inline constexpr std::array<double MetricsFigures::*, 3> metricsSeries = {
    &MetricsFigures::total, &MetricsFigures::allocated, &MetricsFigures::used};

/// A sample that was charted and when it was taken.
struct MetricsMoment {
    std::optional<MetricsDate> time; ///< none when the time stamp cannot be read
    MetricsFigures figures;
};

/// The charted samples in the document's order.
struct MetricsTimeline {
    std::vector<MetricsMoment> moments;
    std::size_t withoutValues = 0; ///< samples that were not charted
};

/// The array of samples, reduced for a segment, with their times. Any thread.
MetricsTimeline timelineOf(const MetricsValue& samples, MetricsSegment segment);

/// All that the performance screens show of a document; it does not need the document any more.
struct PerformanceMetrics {
    MetricsTimeline processors;
    MetricsTimeline memory;

    const MetricsTimeline& of(MetricsSegment segment) const
    {
        return segment == MetricsSegment::Memory ? memory : processors;
    }
};

/// What one figure was over all samples. A value that was reached several times has the first of these times.
struct MetricsSummary {
    struct Value {
        double value = 0;
        std::optional<MetricsDate> time;
    };
    Value lowest;
    Value highest;
    Value last;
    double mean = 0; ///< of the samples, however far apart they are

    bool isFlat() const { return lowest.value == highest.value; }
};
/// Nothing without samples.
std::optional<MetricsSummary> summaryOf(const MetricsTimeline& timeline, double MetricsFigures::*figure);

/// The samples whose times are known, on one line of time.
struct MetricsTrack {
    struct Point {
        int seconds = 0; ///< after the origin
        MetricsFigures figures;
    };
    MetricsDate origin{};        ///< when the earliest sample was taken
    std::vector<Point> points;   ///< by rising time, samples of the same second in the document's order
    int step = 60;               ///< seconds from a sample to the next, as most samples are apart; above 0
    std::size_t withoutTime = 0; ///< samples that could not be placed
};

/// Places the samples on a line of time. Besides samples without a time those are left out whose clock was off by
/// decades: they would leave no room for all others. Any thread.
MetricsTrack trackOf(const MetricsTimeline& timeline);

} // namespace lodestar

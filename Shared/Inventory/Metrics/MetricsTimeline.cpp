// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsTimeline.h"

#include <algorithm>

namespace lodestar
{
namespace
{

/// How far a sample may be from the middle one.
constexpr std::chrono::seconds farthest = std::chrono::years(30);

/// The middle one by size; the list must not be empty and loses its order.
template <typename Value>
Value middleOf(std::vector<Value>& values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

int stepOf(const std::vector<MetricsTrack::Point>& points)
{
    std::vector<int> steps;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (const int step = points[i].seconds - points[i - 1].seconds; step > 0) {
            steps.push_back(step);
        }
    }
    return steps.empty() ? MetricsTrack().step : middleOf(steps);
}

} // namespace

MetricsTimeline timelineOf(const MetricsValue& samples, MetricsSegment segment)
{
    const MetricsReduction reduction = reduceMetrics(samples, segment);
    const std::vector<MetricsValue> all = samples.elements();
    MetricsTimeline timeline;
    timeline.withoutValues = reduction.skipped.size();
    timeline.moments.reserve(reduction.points.size());
    for (const MetricsPoint& point : reduction.points) {
        const auto stamp = all.at(static_cast<std::size_t>(point.xIndex)).path({"sampleInfo", "timeStamp"}).text();
        timeline.moments.push_back({stamp ? dateFromString(*stamp) : std::nullopt, point.figures});
    }
    return timeline;
}

std::optional<MetricsSummary> summaryOf(const MetricsTimeline& timeline, double MetricsFigures::*figure)
{
    if (timeline.moments.empty()) {
        return {};
    }
    const auto valueOf = [figure](const MetricsMoment& moment) {
        return MetricsSummary::Value{moment.figures.*figure, moment.time};
    };
    MetricsSummary summary;
    summary.lowest = summary.highest = valueOf(timeline.moments.front());
    summary.last = valueOf(timeline.moments.back());
    double sum = 0;
    for (const MetricsMoment& moment : timeline.moments) {
        const double value = moment.figures.*figure;
        sum += value;
        if (value < summary.lowest.value) {
            summary.lowest = valueOf(moment);
        } else if (value > summary.highest.value) {
            summary.highest = valueOf(moment);
        }
    }
    // Rounding must not put the mean of equal values beside them.
    summary.mean =
        std::clamp(sum / static_cast<double>(timeline.moments.size()), summary.lowest.value, summary.highest.value);
    return summary;
}

MetricsTrack trackOf(const MetricsTimeline& timeline)
{
    MetricsTrack track;
    std::vector<MetricsDate> times;
    for (const MetricsMoment& moment : timeline.moments) {
        if (moment.time) {
            times.push_back(*moment.time);
        }
    }
    if (times.empty()) {
        track.withoutTime = timeline.moments.size();
        return track;
    }
    const MetricsDate middle = middleOf(times);
    std::erase_if(times, [middle](MetricsDate time) { return std::chrono::abs(time - middle) > farthest; });
    track.origin = *std::ranges::min_element(times);
    track.points.reserve(times.size());
    for (const MetricsMoment& moment : timeline.moments) {
        if (moment.time && std::chrono::abs(*moment.time - middle) <= farthest) {
            track.points.push_back({static_cast<int>((*moment.time - track.origin).count()), moment.figures});
        }
    }
    track.withoutTime = timeline.moments.size() - track.points.size();
    std::ranges::stable_sort(track.points, {}, &MetricsTrack::Point::seconds);
    track.step = stepOf(track.points);
    return track;
}

} // namespace lodestar

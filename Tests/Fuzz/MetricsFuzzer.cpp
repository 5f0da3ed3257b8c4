// SPDX-License-Identifier: Apache-2.0
// Any bytes as a metrics document: what is charted is finite, in order and accounted for, whatever the bytes.
#include "Inventory/Metrics/MetricsReduction.h"
#include "Tests/Fuzz/Require.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

using namespace lodestar;
using fuzz::require;

void checkReduction(const MetricsReduction& reduction)
{
    require(reduction.points.size() + reduction.skipped.size() == reduction.sampleCount, "all samples accounted for");
    require(reduction.points.size() == reduction.xLabels.size(), "a label for each charted sample");
    int before = -1;
    for (std::size_t i = 0; i < reduction.points.size(); ++i) {
        const MetricsPoint& point = reduction.points[i];
        require(point.xIndex > before && static_cast<std::size_t>(point.xIndex) < reduction.sampleCount,
                "indices rise");
        require(reduction.xLabels[i] == std::to_string(point.xIndex), "the label says the sample's place");
        for (const double value : {point.figures.total, point.figures.allocated, point.figures.used}) {
            require(std::isfinite(static_cast<float>(value)), "what is charted is finite");
        }
        before = point.xIndex;
    }
    require(std::ranges::none_of(reduction.skipped, [](const SkippedSample& each) { return each.key.empty(); }),
            "a skipped sample has a key to blame");
    const bool firstCharted = !reduction.points.empty() && reduction.points.front().xIndex == 0;
    const bool lastCharted = !reduction.points.empty() &&
                             static_cast<std::size_t>(reduction.points.back().xIndex) + 1 == reduction.sampleCount;
    require(reduction.first.has_value() == firstCharted && reduction.last.has_value() == lastCharted,
            "the end samples are there when they are charted");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (const auto document = MetricsDocument::parse(text)) {
        const MetricsValue samples = document.value().root().path({"systemUtil", "utilSamples"});
        for (const MetricsSegment segment : {MetricsSegment::Processors, MetricsSegment::Memory}) {
            checkReduction(reduceMetrics(samples, segment));
        }
        require(reduceMetrics(samples, MetricsSegment{-1}).points.empty(), "no other segment charts anything");
    }
    return 0;
}

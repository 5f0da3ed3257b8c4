// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Metrics/MetricsDate.h"
#include "Inventory/Metrics/MetricsDocument.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What is charted. The numbers are the indices of the segments in the screen's control; any other index charts
/// nothing.
enum class MetricsSegment : int { Processors = 0, Memory = 1 };

/// One sample's three figures, in units of processors or in gigabytes of 1000 MB.
struct MetricsFigures {
    double total = 0;
    double allocated = 0;
    double used = 0;

    friend bool operator==(const MetricsFigures&, const MetricsFigures&) = default;
};

/// A sample that was charted.
struct MetricsPoint {
    MetricsFigures figures;
    /// The sample's index among all samples, skipped ones included.
    int xIndex = 0;
};

/// A sample that was not charted, and the first key that prevented it.
struct SkippedSample {
    enum class Reason {
        Null,     ///< the figure is a JSON null
        NoNumber, ///< the figure is missing, is no number, or exceeds single precision
    };
    std::size_t sample = 0;
    std::string_view key; ///< refers to a literal
    Reason reason = Reason::Null;
};

/// Samples reduced to what a chart shows. There are x labels for the charted samples only, while a point's `xIndex`
/// counts all samples, so that after a skipped sample the labels stand before their points. This is meant.
struct MetricsReduction {
    std::size_t sampleCount = 0;
    std::vector<std::string> xLabels;
    std::vector<MetricsPoint> points;
    std::vector<SkippedSample> skipped;

    /// The document's first or last sample; none when that sample was not charted.
    struct EndSample {
        MetricsFigures figures;
        std::optional<MetricsDate> date; ///< none when the time stamp cannot be read
    };
    std::optional<EndSample> first;
    std::optional<EndSample> last;
};

/// When the first and the last sample were taken, as the document says; none when a time stamp cannot be read.
struct MetricsPeriod {
    std::optional<MetricsDate> start;
    std::optional<MetricsDate> end;
};
MetricsPeriod periodOf(const MetricsDocument& document);
/// The document's array of samples, oldest first; none when there is no array. The document must outlive it.
MetricsValue samplesOf(const MetricsDocument& document);
/// What a console writes when it has not processed the metrics.
inline constexpr std::string_view notProcessed = "Processing did not happen";
/// Whether the console has processed the metrics. It has not if the document has no samples, or if the first message
/// among the first sample's errors contains `notProcessed`. A message that is no text counts as empty.
bool wasProcessed(const MetricsDocument& document);

/// Reduces the array of samples; anything but an array counts as an empty one. For processors, `allocated` is total
/// less available, subtracted in single precision and rounded to seven digits. For memory, `allocated` is what is
/// available, and all three figures are divided by 1000 in single precision. The difference is meant. Any thread.
MetricsReduction reduceMetrics(const MetricsValue& samples, MetricsSegment segment);

} // namespace lodestar

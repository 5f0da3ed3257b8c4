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

/// What is charted: the segments of the screen's control, by their index. Any other index charts nothing.
enum class MetricsSegment : int { Processors = 0, Memory = 1 };

/// The three figures of one sample: units of processors, or gigabytes of 1000 MB.
struct MetricsFigures {
    double total = 0;
    double allocated = 0;
    double used = 0;

    friend bool operator==(const MetricsFigures&, const MetricsFigures&) = default;
};

/// A sample that was charted.
struct MetricsPoint {
    MetricsFigures figures;
    /// The sample's place among all, the skipped ones counted.
    int xIndex = 0;
};

/// A sample that was not charted, and the first key to blame.
struct SkippedSample {
    enum class Reason {
        Null,     ///< the figure is a JSON null
        NoNumber, ///< it is missing, no number, or beyond single precision
    };
    std::size_t sample = 0;
    std::string_view key; ///< a literal
    Reason reason = Reason::Null;
};

/// Samples reduced to what a chart shows. The x labels are those of the charted samples alone while their indices count
/// all samples, so after a skipped sample labels stand before their points. That is meant.
struct MetricsReduction {
    std::size_t sampleCount = 0;
    std::vector<std::string> xLabels;
    std::vector<MetricsPoint> points;
    std::vector<SkippedSample> skipped;

    /// The document's first and last sample; none when that one was not charted.
    struct EndSample {
        MetricsFigures figures;
        std::optional<MetricsDate> date; ///< none when its time stamp cannot be read
    };
    std::optional<EndSample> first;
    std::optional<EndSample> last;
};

/// The time of the first sample and of the last, as the document says; none where its time stamp cannot be read.
struct MetricsPeriod {
    std::optional<MetricsDate> start;
    std::optional<MetricsDate> end;
};
MetricsPeriod periodOf(const MetricsDocument& document);
/// The document's array of samples, oldest first; none when it has none. The document must outlive the samples.
MetricsValue samplesOf(const MetricsDocument& document);
/// What a console writes where it has not processed the metrics.
inline constexpr std::string_view notProcessed = "Processing did not happen";
/// Whether the console has processed the metrics. It has not when the document has no samples, or when the first
/// message among the first sample's errors holds `notProcessed`. A message that is no text counts as empty.
bool wasProcessed(const MetricsDocument& document);

/// Reduces the array of samples; what is no array has none. For processors `allocated` is what is not available, by a
/// subtraction in single precision of which seven digits are kept; for memory it is what is available, and all three
/// are divided by 1000 in single precision. That the two differ is meant. Any thread.
MetricsReduction reduceMetrics(const MetricsValue& samples, MetricsSegment segment);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Inventory.h"

#include <string>
#include <string_view>

namespace lodestar::simulator
{

/// The text with JSON's quotation marks and escapes. The text must hold no control characters.
std::string jsonText(std::string_view text);

/// What a metrics document is to look like.
struct MetricsShape {
    int samples = 240;
    /// As if the console had not processed its metrics: every sample says so and has null for each figure.
    bool unprocessed = false;
    /// Makes some figures null, but none of the first or the last sample.
    bool nulls = false;
    /// Adds to each sample the figures of this many made-up partitions.
    int partitions = 0;
    std::uint64_t seed = 1;
};

/// Writes a system's processed metrics as JSON, one sample on each line. Samples are three minutes apart; the last one
/// is from when the inventory was published. The use of processors follows a daily load, and memory is assigned in
/// steps. The last sample has round figures: a quarter of the processors is available, and 40.625 % of them are used.
std::string writeMetricsDocument(const ManagedSystem& system, const MetricsShape& shape);

/// Writes the feed whose first entry links to the document.
std::string writeMetricsFeed(const ManagedSystem& system, const std::string& documentLink);

} // namespace lodestar::simulator

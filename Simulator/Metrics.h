// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Inventory.h"

#include <string>
#include <string_view>

namespace lodestar::simulator
{

/// The text as JSON has it, with its quotation marks. It must hold no control characters.
std::string jsonText(std::string_view text);

/// How a metrics document is to be.
struct MetricsShape {
    int samples = 240;
    /// The console has not processed its metrics: every sample says so and has null for each figure.
    bool unprocessed = false;
    /// Some figures of some samples are null, never the first sample's nor the last's.
    bool nulls = false;
    /// Each sample has the figures of this many made-up partitions besides.
    int partitions = 0;
    std::uint64_t seed = 1;
};

/// The processed metrics of a system as JSON, one sample a line: every three minutes, the last when the inventory was
/// published. Processors follow a daily load, memory is given out in steps. The last sample has round figures: a
/// quarter of the processors available and 40.625 % of them used.
std::string writeMetricsDocument(const Inventory& inventory, const ManagedSystem& system, const MetricsShape& shape);

/// The feed whose first entry links to the document.
std::string writeMetricsFeed(const Inventory& inventory, const ManagedSystem& system, const std::string& documentLink);

} // namespace lodestar::simulator

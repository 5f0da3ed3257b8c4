// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace lodestar
{

/// A wall-clock date and time as a feed states it. It belongs to no zone: the feed's closing Z is a letter, not a zone,
/// and what was written is what is shown, on every device alike and through every clock change. That is meant.
struct FeedDate {
    std::chrono::year_month_day date; ///< of the years 1 to 9999
    std::chrono::milliseconds time{}; ///< on the clock, 00:00 to 23:59:59.999
    friend bool operator==(const FeedDate&, const FeedDate&) = default;
};

/// Reads exactly "yyyy-MM-dd'T'HH:mm:ss.SSS'Z'" in ASCII digits. Nothing for any other text and for what no calendar or
/// clock has. Any thread.
std::optional<FeedDate> parseFeedDate(std::string_view text);

} // namespace lodestar

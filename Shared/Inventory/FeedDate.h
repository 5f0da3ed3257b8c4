// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace lodestar
{

/// A wall-clock date and time as a feed states it, which belongs to no time zone: the feed's closing Z is only a
/// letter. Every device shows what was written, also across clock changes. This is meant.
struct FeedDate {
    std::chrono::year_month_day date; ///< years 1 to 9999
    std::chrono::milliseconds time{}; ///< since midnight, 00:00 to 23:59:59.999
    friend bool operator==(const FeedDate&, const FeedDate&) = default;
};

/// Reads exactly "yyyy-MM-dd'T'HH:mm:ss.SSS'Z'" in ASCII digits. Nothing for any other text, or for a date or time that
/// does not exist. Any thread.
std::optional<FeedDate> parseFeedDate(std::string_view text);

/// Reads exactly "yyyy-MM-dd'T'HH:mm:ss", with the year 0, too. Nothing as above.
std::optional<FeedDate> parseDateAndTime(std::string_view text);
/// The number of a text that consists of ASCII digits alone; nothing for any other text, or an empty one.
std::optional<unsigned> numberOf(std::string_view digits);

} // namespace lodestar

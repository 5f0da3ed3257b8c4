// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace lodestar
{

/// A moment of the metrics, in UTC. Unlike the stamp of a feed it is of a zone, and shown in the device's.
using MetricsDate = std::chrono::sys_seconds;

/// Reads "yyyy-MM-dd'T'HH:mm:ss.ZZZZ" as "2015-03-01T10:00:00.+0000" has it, and nothing before or after it. Date and
/// time are ASCII digits of exactly these counts and exist in the calendar and on the clock; there is no 24:00 and no
/// leap second. The point is a letter of the pattern and no fraction follows it. The zone, which must be there, is "Z",
/// or "GMT", "UTC" or "UT", or a distance from it as in "+0130", "+01:30", "+01" and "-8", or a name and a distance as
/// in "GMT+01:30". Hours of a distance are at most 23, minutes at most 59. Nothing for any other text. Any thread.
std::optional<MetricsDate> dateFromString(std::string_view text);

} // namespace lodestar

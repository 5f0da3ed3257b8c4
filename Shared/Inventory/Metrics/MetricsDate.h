// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace lodestar
{

/// A moment in UTC from a metrics document. Unlike a feed's date it is a real point in time, shown in the device's
/// zone.
using MetricsDate = std::chrono::sys_seconds;

/// Reads exactly "yyyy-MM-dd'T'HH:mm:ss.ZZZZ", for instance "2015-03-01T10:00:00.+0000". Date and time are ASCII
/// digits, as many as the pattern has, and must exist; there is no 24:00 and no leap second. The point belongs to the
/// pattern: no fraction follows it. The zone must be there. It is "Z", a name ("GMT", "UTC" or "UT"), a distance from
/// UTC ("+0130", "+01:30", "+01" or "-8"), or a name and a distance ("GMT+01:30"). A distance has at most 23 hours and
/// 59 minutes. Nothing for any other text. Any thread.
std::optional<MetricsDate> dateFromString(std::string_view text);

} // namespace lodestar

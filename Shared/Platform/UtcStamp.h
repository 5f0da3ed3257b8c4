// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace lodestar
{

/// The second in world time as logs and reports have it: "2024-05-30T09:12:44Z". A second outside the years 0 to 9999,
/// such as a damaged file may hold, is told as that of zero. Any thread.
std::string utcStamp(std::time_t second);
/// Appends the same with thousandths, "2024-05-30T09:12:44.007Z".
void appendUtcStamp(std::string& text, std::chrono::system_clock::time_point time);

} // namespace lodestar

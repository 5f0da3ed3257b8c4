// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace lodestar
{

/// The time in UTC to the second, as logs and reports show it: "2024-05-30T09:12:44Z". A time outside the years 0 to
/// 9999, which a damaged file may hold, is shown as time zero. Any thread.
std::string utcStamp(std::time_t second);
/// Appends the time in the same form, with thousandths: "2024-05-30T09:12:44.007Z".
void appendUtcStamp(std::string& text, std::chrono::system_clock::time_point time);

} // namespace lodestar

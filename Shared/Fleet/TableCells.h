// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Inventory/Health.h"
#include "Platform/UtcStamp.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{
/// @file
/// How the tables write what is no text by itself. Any thread.

/// "2026-03-12T09:41:00Z"; empty for no time.
inline std::string utcCell(const std::optional<WallTime>& time)
{
    return time ? utcStamp(std::chrono::system_clock::to_time_t(*time)) : std::string();
}
inline std::string truthCell(bool is)
{
    return is ? "true" : "false";
}
inline std::string wordOf(Health health)
{
    switch (health) {
    case Health::Good:
        return "good";
    case Health::Idle:
        return "idle";
    case Health::Alert:
        return "alert";
    case Health::Error:
        return "error";
    case Health::Offline:
        break;
    }
    return "offline";
}
/// Appends a text to the list in a cell.
inline void appendToCell(std::string& list, std::string_view text)
{
    list.append(list.empty() ? "" : "; ").append(text);
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Inventory.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace lodestar::simulator
{

/// The values by which consoles with a shared inventory differ.
enum class Blank { Address, ConsoleName, ConsoleSerial, ConsoleID };
inline constexpr std::size_t blankCount = 4;
using BlankValues = std::array<std::string, blankCount>;

/// The object types for which a console has feeds, in the order in which clients request them.
inline constexpr std::array<std::string_view, 6> feedTypes = {
    "ManagementConsole", "ManagedSystem", "VirtualIOServer", "LogicalPartition", "ServiceableEvent", "Group"};

/// The feed with its blanks filled in. Each blank is a mark and a digit, so that thousands of consoles can share one
/// text.
std::string filled(const std::string& feed, const BlankValues& values);

/// Writes every feed of the inventory, by type, with blanks, each padded to about `feedBytes`.
std::map<std::string, std::string, std::less<>> writeFeeds(const Inventory& inventory, std::size_t feedBytes);

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Protocol.h"
#include "Simulator/Settings.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar::simulator
{

/// When every feed was made.
inline constexpr std::chrono::sys_seconds publishedAt =
    std::chrono::sys_days(
        std::chrono::year_month_day(std::chrono::year(2026), std::chrono::March, std::chrono::day(12))) +
    std::chrono::hours(9) + std::chrono::minutes(41) + std::chrono::seconds(17);
/// The same, and a quarter of a second, as the feeds say it.
inline constexpr std::string_view published = "2026-03-12T09:41:17.250Z";

struct MachineIdentity {
    std::string type;
    std::string model;
    std::string serialNumber;
};

struct ManagedSystem {
    std::string id;
    std::string name;
    std::string state;
    std::string attentionLED;
    std::string ipAddress;
    /// Without a value the element itself is left out.
    std::optional<std::string> referenceCode;
    MachineIdentity machine;
    std::string processorUnits;
    int memoryMB = 0;
    /// The console does not list it any more. Its place stays, since others refer to objects by their places.
    bool isGone = false;
};

/// A logical partition or a virtual I/O server. Only the feed that lists it tells which.
struct Partition {
    std::string id;
    std::string name;
    int number = 0;
    std::string type;
    std::string state;
    std::optional<std::string> referenceCode;
    /// Index of the owning system.
    std::size_t system = 0;
    bool isGone = false;
};

/// The names and texts of elements.
using Fields = std::vector<std::pair<std::string_view, std::string>>;

struct ServiceableEvent {
    std::string id;
    Fields fields;
    /// Index of the failing system; none when the console itself has the fault.
    std::optional<std::size_t> failingSystem;
    /// The parts to replace.
    std::vector<Fields> units;
};

struct Group {
    std::string id;
    std::string name;
    std::string color;
    /// Indices into the inventory's lists.
    std::vector<std::size_t> partitions;
    std::vector<std::size_t> vios;
    std::vector<std::size_t> systems;
};

struct ConsoleIdentity {
    std::string id;
    std::string name;
    MachineIdentity machine;
    Fields version;
};

struct Inventory {
    ConsoleIdentity console;
    std::vector<ManagedSystem> systems;
    std::vector<Partition> partitions;
    std::vector<Partition> vios;
    std::vector<ServiceableEvent> events;
    std::vector<Group> groups;
};

/// Makes one console's inventory, always the same for the same settings and number. Half of the systems, and more than
/// half of the partitions, are good; the others take every state that a screen treats specially.
Inventory makeInventory(const Settings& settings, std::uint64_t number);

/// The identity of the console with that index.
ConsoleIdentity makeConsoleIdentity(std::uint64_t seed, int index);

InventorySummary summaryOf(const Inventory& inventory);

/// Makes an identifier that looks random, in the usual 8-4-4-4-12 form; always the same for the same two numbers.
std::string makeIdentifier(std::uint64_t high, std::uint64_t low);

} // namespace lodestar::simulator

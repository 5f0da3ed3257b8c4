// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Protocol.h"
#include "Simulator/Settings.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lodestar::simulator
{

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
    /// No element at all when there is none.
    std::optional<std::string> referenceCode;
    MachineIdentity machine;
    std::string processorUnits;
    int memoryMB = 0;
};

/// A logical partition or a virtual I/O server: a console tells them apart by their feed only.
struct Partition {
    std::string id;
    std::string name;
    int number = 0;
    std::string type;
    std::string state;
    std::optional<std::string> referenceCode;
    /// Index of the owning system.
    std::size_t system = 0;
};

struct ReplaceableUnit {
    std::string partNumber;
    std::string unitClass;
    std::string description;
    std::string locationCode;
    std::string previouslyReplaced;
    std::string replacedTimestamp;
    std::string replacementGroup;
};

struct ServiceableEvent {
    std::string id;
    int problemNumber = 0;
    std::string callHome;
    int hardwareRecord = 0;
    std::string approvalState;
    std::string referenceCode;
    std::string referenceCodeExtension;
    std::string systemReferenceCode;
    std::string problemState;
    std::string firmwareFix;
    /// Seconds since 1970.
    std::int64_t firstReported = 0;
    std::int64_t lastReported = 0;
    std::int64_t primary = 0;
    /// Index of the failing system; none for a fault of the console itself.
    std::optional<std::size_t> failingSystem;
    std::string text;
    int severity = 0;
    std::string notificationType;
    int duplicates = 0;
    std::vector<ReplaceableUnit> units;
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
    std::string version;
    std::string release;
    std::string maintenance;
    std::string minor;
    std::string servicePackName;
    std::string buildLevel;
};

struct Inventory {
    /// "yyyy-MM-dd'T'HH:mm:ss.SSS'Z'".
    std::string published;
    ConsoleIdentity console;
    std::vector<ManagedSystem> systems;
    std::vector<Partition> partitions;
    std::vector<Partition> vios;
    std::vector<ServiceableEvent> events;
    std::vector<Group> groups;
};

/// The inventory of one console, the same for the same settings and number. Half of the systems, and more of the
/// partitions, are well; the others go through every state that a screen treats in a way of its own.
Inventory makeInventory(const Settings& settings, std::uint64_t number);

/// Who the console of that index is.
ConsoleIdentity makeConsoleIdentity(std::uint64_t seed, int index);

InventorySummary summaryOf(const Inventory& inventory);

/// A random-looking identifier in the usual 8-4-4-4-12 form, the same for the same two numbers.
std::string makeIdentifier(std::uint64_t high, std::uint64_t low);

} // namespace lodestar::simulator

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
    /// Without a value the element itself is left out.
    std::optional<std::string> referenceCode;
    MachineIdentity machine;
    std::string processorUnits;
    int memoryMB = 0;
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
    /// Index of the failing system; none when the console itself has the fault.
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
    /// In the form "yyyy-MM-dd'T'HH:mm:ss.SSS'Z'".
    std::string published;
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

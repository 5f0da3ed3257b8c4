// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Health.h"
#include "Inventory/Record.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// A part of a managed system that runs for itself. Consoles say the same of logical partitions and of virtual I/O
/// servers.
class Partition : public Record
{
public:
    using Record::Record;

    std::optional<std::string> name() const { return text("PartitionName"); }
    std::optional<std::string> identifier() const { return text("PartitionID"); }
    std::optional<std::string> kind() const { return text("PartitionType"); }
    std::optional<std::string> state() const { return text("PartitionState"); }
    std::optional<std::string> referenceCode() const { return text("ReferenceCode"); }
    /// Where the console serves the name of the managed system that the partition belongs to. A partition that names
    /// no system has an address all the same, which no console serves.
    std::string systemNameLink() const;

    /// "running" is good, "not activated" idle, "error" an error; any other state calls for attention. Case counts.
    Health health() const;
};

class LogicalPartition : public Partition
{
public:
    static constexpr std::string_view type = ObjectType::LogicalPartition;
    using Partition::Partition;
};

class VirtualIOServer : public Partition
{
public:
    static constexpr std::string_view type = ObjectType::VirtualIOServer;
    using Partition::Partition;
};

} // namespace lodestar

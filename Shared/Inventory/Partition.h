// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Health.h"
#include "Inventory/Record.h"

#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// A part of a managed system that runs on its own. Consoles report the same fields for logical partitions and for
/// virtual I/O servers.
class Partition : public Record
{
public:
    using Record::Record;

    std::optional<std::string> name() const { return text("PartitionName"); }
    std::optional<std::string> identifier() const { return text("PartitionID"); }
    std::optional<std::string> kind() const { return text("PartitionType"); }
    std::optional<std::string> state() const { return text("PartitionState"); }
    std::optional<std::string> referenceCode() const { return text("ReferenceCode"); }
    /// The link under which the console serves the name of the partition's managed system. A partition that names no
    /// system has a link, too, but no console serves it.
    std::string systemNameLink() const;

    /// Good for "running", idle for "not activated", an error for "error"; any other state needs attention. Case
    /// counts.
    Health health() const { return healthOfState(state().value_or("")); }
    static Health healthOfState(std::string_view state);
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

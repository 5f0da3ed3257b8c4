// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Health.h"
#include "Inventory/Record.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// A server that a console manages.
class ManagedSystem : public Record
{
public:
    static constexpr std::string_view type = ObjectType::ManagedSystem;
    using Record::Record;

    std::optional<std::string> name() const { return text("SystemName"); }
    /// The name under which the console serves the system's performance metrics.
    std::optional<std::string> identifier() const { return text({"Metadata", "Atom", "AtomID"}); }
    std::optional<std::string> state() const { return text("State"); }
    std::optional<std::string> primaryIPAddress() const { return text("PrimaryIPAddress"); }
    std::optional<std::string> referenceCode() const { return text("ReferenceCode"); }
    /// Usually "true" or "false".
    std::optional<std::string> attentionLEDState() const { return text("PhysicalSystemAttentionLEDState"); }
    /// Processors, with a fraction.
    std::optional<std::string> availableProcessingUnits() const;
    /// Megabytes.
    std::optional<std::string> availableMemory() const;
    MachineIdentity identity() const { return MachineIdentity(element().child("MachineTypeModelAndSerialNumber")); }

    /// The identifier of the system in the feed's entry at the index, from 0; none when there is no such entry.
    static std::optional<std::string> identifierAt(const Feed& feed, std::size_t place);

    /// Good for "operating"; an error for any state that contains "error" or "incomplete"; idle for all others. Case
    /// counts.
    Health health() const { return healthOfState(state().value_or("")); }
    static Health healthOfState(std::string_view state);
    bool isAttentionLEDLit() const { return attentionLEDState() == "true"; }
};

} // namespace lodestar

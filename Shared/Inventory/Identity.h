// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/ConsoleInformation.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ResourceGroup.h"
#include "Inventory/ServiceableEvent.h"

#include <string>
#include <string_view>

namespace lodestar
{

/// By what an object is known again in the next feed: the console's own identifier; without one the fields that stay
/// when an object is renamed; without these its name. Empty when the console tells none of them. An identity holds
/// among the objects of one type on one console. Any thread.
std::string identityOf(const ConsoleInformation& console);
std::string identityOf(const ManagedSystem& system);
std::string identityOf(const Partition& partition);
std::string identityOf(const ServiceableEvent& event);
std::string identityOf(const ResourceGroup& group);

/// The identity of an object of the type; empty for a type that no feed has.
std::string identityOfObject(const XMLElement& object, std::string_view type);

/// The identity of the object of the type in a feed's entry. Prefer it wherever the entry is at hand: some consoles put
/// the identifier beside the object instead of inside.
std::string identityOfEntry(const XMLElement& entry, std::string_view type);

/// The console's own identifier of the object that a link leads to: the last part of the link's path. Empty for none.
std::string identityOfLink(std::string_view address);
/// Likewise of the partition's managed system, and of a group's member.
std::string identityOfSystem(const Partition& partition);
std::string identityOfMember(const ResourceGroup::Member& member);

} // namespace lodestar

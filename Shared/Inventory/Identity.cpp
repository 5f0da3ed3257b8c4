// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Identity.h"

#include <initializer_list>
#include <optional>

namespace lodestar
{
namespace
{

std::string firstOf(std::initializer_list<std::optional<std::string>> texts)
{
    for (const auto& text : texts) {
        if (text && !text->empty()) {
            return *text;
        }
    }
    return {};
}

std::optional<std::string> atomOf(const XMLElement& element)
{
    return element.path({"Metadata", "Atom", "AtomID"}).text();
}

/// Only together do the numbers name one machine: models share serial numbers.
std::optional<std::string> machineOf(const MachineIdentity& identity)
{
    const auto serial = identity.serialNumber();
    if (!serial || serial->empty()) {
        return {};
    }
    return identity.machineType().value_or("") + "-" + identity.model().value_or("") + "*" + *serial;
}

/// Systems number their partitions each from 1.
std::optional<std::string> numberInSystem(const Partition& partition)
{
    const auto number = partition.identifier();
    if (!number || number->empty()) {
        return {};
    }
    return identityOfSystem(partition) + "/" + *number;
}

} // namespace

std::string identityOf(const ConsoleInformation& console)
{
    return firstOf({atomOf(console.element()), machineOf(console.identity()), console.name()});
}

std::string identityOf(const ManagedSystem& system)
{
    if (auto atom = system.identifier(); atom && !atom->empty()) {
        return *atom;
    }
    return firstOf({machineOf(system.identity()), system.name()});
}

std::string identityOf(const Partition& partition)
{
    if (auto atom = atomOf(partition.element()); atom && !atom->empty()) {
        return *atom;
    }
    return firstOf({numberInSystem(partition), partition.name()});
}

std::string identityOf(const ServiceableEvent& event)
{
    if (auto atom = atomOf(event.element()); atom && !atom->empty()) {
        return *atom;
    }
    return firstOf({event.problemNumber(), event.shortDescription()});
}

std::string identityOf(const ResourceGroup& group)
{
    return firstOf({atomOf(group.element()), group.name()});
}

std::string identityOfObject(const XMLElement& object, std::string_view type)
{
    if (type == ManagedSystem::type) {
        return identityOf(ManagedSystem(object));
    }
    if (type == LogicalPartition::type || type == VirtualIOServer::type) {
        return identityOf(Partition(object));
    }
    if (type == ServiceableEvent::type) {
        return identityOf(ServiceableEvent(object));
    }
    if (type == ResourceGroup::type) {
        return identityOf(ResourceGroup(object));
    }
    return type == ConsoleInformation::type ? identityOf(ConsoleInformation(object)) : std::string();
}

std::string identityOfEntry(const XMLElement& entry, std::string_view type)
{
    const XMLElement content = entry.child("content");
    auto beside = atomOf(content);
    return beside && !beside->empty() ? *beside : identityOfObject(content.child(type), type);
}

std::string identityOfLink(std::string_view address)
{
    address = address.substr(0, address.find_first_of("?#"));
    while (address.ends_with('/')) {
        address.remove_suffix(1);
    }
    return std::string(address.substr(address.rfind('/') + 1));
}

std::string identityOfSystem(const Partition& partition)
{
    return identityOfLink(partition.element().child("AssociatedManagedSystem").attribute("href").value_or(""));
}

std::string identityOfMember(const ResourceGroup::Member& member)
{
    return identityOfLink(member.link.attribute("href").value_or(""));
}

} // namespace lodestar

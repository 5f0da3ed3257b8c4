// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ResourceGroup.h"

#include <utility>

namespace lodestar
{

std::vector<ResourceGroup::Member> ResourceGroup::members() const
{
    std::vector<Member> members;
    for (const auto& [list, kind] : {std::pair("AssociatedLogicalPartitions", MemberKind::Partition),
                                     std::pair("AssociatedVirtualIOServers", MemberKind::Partition),
                                     std::pair("AssociatedManagedSystems", MemberKind::ManagedSystem)}) {
        for (XMLElement& link : element().child(list).children("link")) {
            members.push_back({std::move(link), kind});
        }
    }
    return members;
}

std::optional<std::string> ResourceGroup::stateLinkOf(const Member& member)
{
    const auto address = member.link.attribute("href");
    const char* const property = member.kind == MemberKind::ManagedSystem ? "/quick/State" : "/quick/PartitionState";
    return address ? std::optional(*address + property) : std::nullopt;
}

std::optional<Health> ResourceGroup::healthOfMember(std::string_view state)
{
    if (state == "operating" || state == "running") {
        return Health::Good;
    }
    if (state == "not available" || state == "not activated") {
        return Health::Idle;
    }
    if (state == "alert") {
        return Health::Alert;
    }
    return state == "error" ? std::optional(Health::Error) : std::nullopt;
}

} // namespace lodestar

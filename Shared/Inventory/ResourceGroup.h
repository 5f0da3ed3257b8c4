// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Health.h"
#include "Inventory/Record.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A group of partitions, servers and systems that somebody put together.
class ResourceGroup : public Record
{
public:
    static constexpr std::string_view type = ObjectType::Group;
    using Record::Record;

    enum class MemberKind { Partition, ManagedSystem };
    /// A member, as far as the group tells about it.
    struct Member {
        XMLElement link; ///< the group's link to the member
        MemberKind kind;
    };

    std::optional<std::string> name() const { return text("GroupName"); }
    /// The English name of a colour.
    std::optional<std::string> color() const { return text("GroupColor"); }
    /// In this order: partitions, servers, systems.
    std::vector<Member> members() const;
    /// The link under which the console serves the member's state; none when the member has no address.
    static std::optional<std::string> stateLinkOf(const Member& member);

    /// The health for the state of a member of either kind. States must match exactly, case included; none for a state
    /// that no group counts.
    static std::optional<Health> healthOfMember(std::string_view state);
};

} // namespace lodestar

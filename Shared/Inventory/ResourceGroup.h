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

/// Partitions, servers and systems that somebody has put together.
class ResourceGroup : public Record
{
public:
    static constexpr std::string_view type = ObjectType::Group;
    using Record::Record;

    enum class MemberKind { Partition, ManagedSystem };
    /// A member as the group names it.
    struct Member {
        XMLElement link; ///< what the group holds of it: where the console serves the member
        MemberKind kind;
    };

    std::optional<std::string> name() const { return text("GroupName"); }
    /// A colour's English name.
    std::optional<std::string> color() const { return text("GroupColor"); }
    /// Partitions, then servers, then systems.
    std::vector<Member> members() const;
    /// Where the console serves a member's state; none when the member has no link.
    static std::optional<std::string> stateLinkOf(const Member& member);

    /// Judges the state of a member of either kind by exact words, case included. None for a state that no group
    /// counts.
    static std::optional<Health> healthOfMember(std::string_view state);
};

} // namespace lodestar

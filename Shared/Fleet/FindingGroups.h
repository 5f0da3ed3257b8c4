// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Inventory/Feed.h"
#include "Inventory/ResourceGroup.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// A group with a member in error that no list of the console shows.
struct GroupInError {
    ResourceGroup group;
    std::string identity;
    std::size_t membersInError = 0; ///< as far as their state is known
    std::size_t members = 0;
    /// When a screen first found a member in error that no feed shows at all; none when the feeds tell of the error.
    std::optional<WallTime> lookedUp;
};

/// Members in error that screens looked up, by identity.
using LookedUpMembers = std::map<std::string, WallTime>;

/// The groups that must be listed themselves, in the feed's order. Members are found in the console's own feeds by the
/// identifiers in the groups' links: unlike a group's row, this asks the console nothing. Any thread.
///
/// A system, a partition or an I/O server in error is listed itself, so only those count that stand in a feed of
/// another type, where no list looks for them, and those that stand in no feed. Of the latter only a look-up tells the
/// state: one counts when a screen has looked it up and found it in error. What no screen has looked up is not known,
/// and no request is made for it. A member that a feed shows is judged by the feed, however a look-up found it: its own
/// row must not come and go with a group's.
std::vector<GroupInError> groupsInError(const FeedDictionary& feeds, const LookedUpMembers* lookedUp = nullptr);

} // namespace lodestar

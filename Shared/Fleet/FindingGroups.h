// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Feed.h"
#include "Inventory/ResourceGroup.h"

#include <cstddef>
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
};

/// The groups that must be listed themselves, in the feed's order. Members are found in the console's own feeds by the
/// identifiers in the groups' links: unlike a group's row, this asks the console nothing. Any thread.
///
/// A system, a partition or an I/O server in error is listed itself, so only those count that stand in a feed of
/// another type, where no list looks for them.
std::vector<GroupInError> groupsInError(const FeedDictionary& feeds);

} // namespace lodestar

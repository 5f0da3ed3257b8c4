// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Feed.h"

#include <map>
#include <string>

namespace lodestar
{

/// The names of a console's systems by identity: what a partition's link to its system leads to, without asking the
/// console. Any thread.
std::map<std::string, std::string> systemNamesOf(const FeedDictionary& feeds);

} // namespace lodestar

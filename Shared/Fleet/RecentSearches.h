// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Finding.h"

#include <cstddef>
#include <string>
#include <vector>

namespace lodestar
{

/// The texts that a person searched for last, the newest first. They are kept with the settings in the history, and so
/// go with it at a reset. Any thread.
namespace RecentSearches
{
inline constexpr std::size_t most = 5;

std::vector<std::string> list();
/// Puts the text first; one that means the same goes.
void add(const std::string& text);
void clear();
/// Forgets those that find something of a console, which is about to be deleted: nothing of it may stay.
void forgetThoseOf(const ConsoleSnapshot& console);
} // namespace RecentSearches

} // namespace lodestar

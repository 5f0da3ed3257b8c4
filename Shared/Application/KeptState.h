// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/UserDefaults.h"

namespace lodestar::KeptState
{

/// What the application itself remembers from one start to the next, such as its window's place or what the keychain
/// still has to do. Preferences, which a person sets, are not kept here. One per process, in a small file of its own in
/// the data folder; only in memory until a folder is set.
UserDefaults& shared();

/// Reads what an earlier run kept in the folder; the empty text goes back to memory. Main thread.
void openFolder(const std::string& folder);

} // namespace lodestar::KeptState

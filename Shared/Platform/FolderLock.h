// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace lodestar
{

enum class FolderClaim {
    Ours,
    Taken,   ///< another process has the folder; two processes would overwrite each other's defaults
    Foreign, ///< the folder belongs to another user, who could read and change its files
    /// A link, or a file that is not this user's, has the lock file's name; locking it would lock something else.
    NoLock
};

/// Claims a folder for this process. The claim lasts until the process ends, however it ends. The answer is `Ours`,
/// too, for a folder that does not exist and for one in which no lock file can be made.
FolderClaim claimFolder(const std::string& folder);

} // namespace lodestar

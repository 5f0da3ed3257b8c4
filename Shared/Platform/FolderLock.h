// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace lodestar
{

enum class FolderClaim {
    Ours,
    Taken,   ///< another process has it: two would overwrite each other's defaults
    Foreign, ///< it belongs to another user, who could read and change what is kept there
    NoLock   ///< what stands in the place of its lock is a link, or no file of this user: it would lock something else
};

/// Claims a folder for this process, until the process ends in whichever way. A folder that is not there, or in which
/// no lock can be made, is nobody's else and ours.
FolderClaim claimFolder(const std::string& folder);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/PrivateFile.h"

#include <string>

namespace lodestar::DataFolder
{

/// Where Lodestar keeps everything unless a person names another folder. The application and the command line share it,
/// one process at a time. Empty when the process has no home.
std::string standard();

/// Makes the folder where it is missing, and claims it for this process. A claimed folder is private afterwards; one of
/// another user keeps its permissions. That a folder cannot be made shows later, when something is to be kept in it.
FolderClaim claim(const std::string& folder);

// What lies in it.
inline std::string documents(const std::string& folder)
{
    return folder + "/Documents";
}
inline std::string logs(const std::string& folder)
{
    return folder + "/Logs";
}
inline std::string defaults(const std::string& folder)
{
    return folder + "/Lodestar.defaults";
}

} // namespace lodestar::DataFolder

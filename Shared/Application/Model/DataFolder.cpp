// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/DataFolder.h"

#include <cstdlib>
#include <string_view>
#include <tuple>

namespace lodestar
{

std::string DataFolder::standard()
{
    constexpr const char* name = "/Lodestar";
    // A relative path would lead to another folder from each place where a process starts.
    if (const char* const data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
        return data + std::string(name);
    }
    const char* const home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? std::string(home) + "/.local/share" + name : std::string();
}

FolderClaim DataFolder::claim(const std::string& folder)
{
    std::ignore = makePrivateFolder(folder);
    const FolderClaim claim = claimFolder(folder);
    if (claim == FolderClaim::Ours) {
        // Only after the claim: a folder of another user must keep its permissions.
        std::ignore = makePrivateFolder(folder, FolderThere::Tightened);
    }
    return claim;
}

} // namespace lodestar

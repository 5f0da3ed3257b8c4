// SPDX-License-Identifier: Apache-2.0
#include "Application/KeptState.h"

#include "Application/Model/FileUserDefaults.h"

namespace lodestar
{
namespace
{

/// Never destroyed: its queue may still be at work when the process ends.
std::unique_ptr<UserDefaults>& kept()
{
    static auto& state = *new std::unique_ptr<UserDefaults>(std::make_unique<UserDefaults>());
    return state;
}

} // namespace

UserDefaults& KeptState::shared()
{
    return *kept();
}

void KeptState::openFolder(const std::string& folder)
{
    kept().reset(); // writes first what is pending: it may be the same folder
    kept() = folder.empty() ? std::make_unique<UserDefaults>()
                            : std::make_unique<FileUserDefaults>(folder + "/Lodestar.state");
}

} // namespace lodestar

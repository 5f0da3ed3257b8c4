// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace lodestar
{

/// Claims a folder for this process, until the process ends in whichever way. False when another process has it: two
/// would overwrite each other's defaults. A folder in which no lock can be made is nobody's, and the answer is true.
bool claimFolder(const std::string& folder);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <string>
#include <string_view>

namespace lodestar
{

/// Replaces the file as a whole, or makes it: who reads it finds the old text or the new one, never a part. Everybody
/// may read it (0644), since a collector is another user. A file that cannot be finished leaves the old one. Fails with
/// a sentence for a person; also when something other than a file has the name.
Result<void> replaceFile(const std::string& path, std::string_view text);

} // namespace lodestar

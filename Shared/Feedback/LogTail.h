// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

namespace lodestar
{

/// The last whole lines of the log in that folder, at most `bytes` bytes, the youngest rotated file included. Empty
/// when there is no log. To include the newest lines, call `VireoLogger::flush` first.
std::string logTail(const std::string& folder, std::size_t bytes);

/// The same for a run that has ended: lines from this run's first header on are left out.
std::string logTailBeforeThisRun(const std::string& folder, std::size_t bytes);

} // namespace lodestar

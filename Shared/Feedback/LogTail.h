// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

namespace lodestar
{

/// The last whole lines of the log in that folder, at most so many bytes of them, the file that was set aside last
/// included. Empty when there is no log. `VireoLogger::flush` first, for the lines of this moment.
std::string logTail(const std::string& folder, std::size_t bytes);

/// The same for a run that has ended: what was logged after this run's own first header line is left out.
std::string logTailBeforeThisRun(const std::string& folder, std::size_t bytes);

} // namespace lodestar

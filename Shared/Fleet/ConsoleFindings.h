// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Finding.h"

#include <deque>

namespace lodestar
{

/// Appends what is wrong at one console, in no order that means anything. Any thread.
void addFindings(const ConsoleSnapshot& console, WallTime now, std::deque<Finding>& list);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attempt.h"

#include <string_view>

namespace lodestar
{

/// What the refresh tells by itself; `Readings::end` adds what came before. Any thread.
Reading readingOf(const Attempt& attempt);
/// The same of one feed. `type` is of the feed table, whose texts live as long as the process.
FeedReading feedReadingOf(std::string_view type, const Exchange& exchange);
/// The same without an exchange, of the demonstration console.
FeedReading feedReadingOf(std::string_view type, const Feed& feed, WallTime read);

} // namespace lodestar

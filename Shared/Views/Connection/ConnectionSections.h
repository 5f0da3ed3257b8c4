// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Views/Connection/ConnectionSection.h"

namespace lodestar
{

/// The sections that `connectionContent` puts together. Pure.

ConnectionSection stagesSection(const Reading& reading, WallTime now);
ConnectionSection feedsSection(const Reading& reading, WallTime now);
ConnectionSection certificateSection(const Reading& reading, WallTime now);

/// "48 ms", "4.1 s".
QString durationText(std::chrono::microseconds duration);
/// The time of a whole attempt: "0.94 s", "1.2 s".
QString attemptText(std::chrono::microseconds duration);
/// "at 09:26", "yesterday 21:40".
QString atMoment(WallTime then, WallTime now);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Memory.h"

#include <QString>

namespace lodestar
{

/// The words for how long ago something was, in the device's time zone. Pure.
namespace AgeText
{

/// "just now", "2 min ago", "03:12", "yesterday 21:40", "Mon 21:40", "3 Mar", "3 Mar 2025". A stamp up to two minutes
/// ahead is "just now", beyond that the full date.
QString of(WallTime then, WallTime now);
/// The same, but only the first part of two: "yesterday", "Mon".
QString atRowEnd(WallTime then, WallTime now);
/// "since 09:41" or "at least since 09:41".
QString since(const Since& since, WallTime now);
/// "read 2 h ago": how old something old is.
QString readAgo(WallTime then, WallTime now);
/// The clock alone, "09:41".
QString clock(WallTime time);
/// When something was, however short ago: "09:41", "yesterday 21:40", "Mon 21:40", "3 Mar", "3 Mar 2025".
QString moment(WallTime then, WallTime now);
/// The same, but "today, 09:41".
QString momentOfDay(WallTime then, WallTime now);
/// The full date, "3 Mar 2025".
QString date(WallTime time);
/// The date without its year where that is this year: "3 Mar".
QString shortDate(WallTime time, WallTime now);
/// Whether what was read then is older than the refresh interval.
bool isOld(WallTime then, WallTime now);

} // namespace AgeText

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Watch.h"

#include <QString>

#include <chrono>

namespace lodestar
{

/// The words of the watch's settings. Main thread.
namespace WatchText
{

/// What stands beside the bell: "off", "every 15 min".
QString state();
/// "15 min", "1 h".
QString interval(std::chrono::minutes interval);
QString newEvents(WatchSettings::NewEvents choice);
/// "all 6", "4 of 6": how many of the consoles are watched.
QString consoles(const std::vector<CorvelRef>& consoles, const WatchSettings& settings);
/// "22:00".
QString timeOfDay(std::chrono::minutes sinceMidnight);
/// "Northfield Recovery Site is left out until you refresh it by hand: its certificate changed."; empty for none.
QString leftOut(const std::vector<CorvelRef>& consoles);

} // namespace WatchText

} // namespace lodestar

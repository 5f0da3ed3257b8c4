// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/ChangeDays.h"
#include "Views/Attention/FindingCell.h"

#include <QString>

#include <vector>

namespace lodestar
{

/// The words of a change. Names, states and texts of consoles are isolated, so that they stay as they are within a
/// line of any direction. Pure.
namespace ChangeText
{

/// The row of one change, or of several that are folded. `leadsOn` says whether a tap opens something.
FindingCell cellOf(const std::vector<Change>& changes, const ChangeRow& row, bool leadsOn);
/// "Today", "Yesterday", then the date.
QString dayTitle(std::chrono::local_days day, std::chrono::local_days today);
/// "25 min", "2 h 5 min", "3 days".
QString duration(std::chrono::seconds lasted);

} // namespace ChangeText

} // namespace lodestar

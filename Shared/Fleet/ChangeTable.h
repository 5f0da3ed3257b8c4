// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Change.h"
#include "Fleet/Csv.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The words under which scripts know changes: "worse", "led_on", "event_opened". They never change.
std::string_view wordOf(ChangeSense sense);
std::string_view wordOf(ChangeKind kind);

/// The changes of these indexes, in this order, one a row. Titles follow the rule of `tableOfObjects`. Any thread.
Table tableOfChanges(const std::vector<Change>& changes, const std::vector<std::uint32_t>& shown);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Fleet/FleetEvents.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lodestar
{

/// The titles of an event's fields, and its cells below them. Lists within a cell, as of parts, are joined by "; ", and
/// those of one event have the same order. Times are as the console sends them, and once more in UTC. Any thread.
std::vector<std::string> eventTitles();
std::vector<std::string> eventCells(const ServiceableEvent& event, std::string identifier);

/// The events of these indexes, in this order, behind console and address: the columns of `tableOfObjects`. Any thread.
Table tableOfEvents(const std::vector<FleetEvent>& events, const std::vector<std::uint32_t>& shown);

} // namespace lodestar

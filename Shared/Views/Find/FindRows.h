// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSearch.h"
#include "Kit/Core/ViewController.h"
#include "Views/Find/FindCell.h"

namespace lodestar
{

/// What the lists of found objects have in common. Main thread.

/// The row of what was found. `wanted` is the text as it is looked for; it is marked in the name, or else in the line
/// below, which then is the field that has it.
FindCell cellOf(const FleetSearch& search, const FoundObject& found, const std::string& wanted);

/// The row that leads to all of so many.
FindCell moreCell(const FleetSearch& search, std::size_t number);

/// The object as a number: the same as long as the console and the object's place in it are.
std::size_t keyOf(const FleetSearch& search, const FoundObject& found);

/// Opens what was found over a screen: the object's details, its console's groups, the console's overview, or the
/// connection of one that does not answer. Does nothing for a console that was deleted meanwhile.
void openFound(const ViewController& from, const FleetSearch& search, const FoundObject& found);

} // namespace lodestar

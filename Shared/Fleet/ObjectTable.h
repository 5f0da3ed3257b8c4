// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Fleet/Finding.h"
#include "Fleet/FleetSearch.h"

#include <string_view>
#include <vector>

namespace lodestar
{

/// The objects of one type (a type of the feed table) as rows: console, address, then the fields of its kind, whole:
/// what the screens cut is not cut here. Titles are short lower-case English words without blanks, such as "console",
/// "name", "state", "serial_number"; they are part of what scripts rely on and never change or move, new ones come
/// last. A field that the console leaves out is an empty cell. Consoles without the feed add no rows. Pure; any thread.
Table tableOfObjects(std::string_view type, const std::vector<ConsoleSnapshot>& consoles);

/// Likewise some objects of one console, in the order given: the elements that a list shows. Pure; any thread.
Table tableOfElements(std::string_view type, const ConsoleSnapshot& console, const std::vector<XMLElement>& elements);

/// Likewise what a search found of one kind, in the order given; `kind` is an index into the searched kinds. Consoles
/// are as `tableOfConsoles` has them. Pure; any thread.
Table tableOfFound(const FleetSearch& search, std::size_t kind, const std::vector<FoundObject>& found);

/// What is known of the consoles themselves, a row each, whether they answered or not. Titles as above. Any thread.
Table tableOfConsoles(const std::vector<ConsoleSnapshot>& consoles);

} // namespace lodestar

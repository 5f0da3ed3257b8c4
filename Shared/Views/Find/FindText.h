// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSearch.h"

#include <QString>

namespace lodestar
{

/// The words of Find. Pure.
namespace FindText
{

/// "Logical Partitions"; `kind` is an index into the searched kinds.
QString kind(std::size_t kind);
/// "12", in a large fleet no more than "999+".
QString count(const FleetSearch& search, std::size_t number);
QString showAll(const FleetSearch& search, std::size_t number);
/// "Nothing found for “zephyr”".
QString nothingFound(const QString& text);
/// "5 of 6 consoles were searched." and what was not read; or that nothing was.
QString searched(const FleetSearch& search);
/// "2,318 things on 5 of 6 consoles, read 09:41 to 09:43." and what was not read; or that nothing was.
QString things(const FleetSearch& search, WallTime now);
/// "Northfield Recovery Site was not read. Partitions of Ridgeway Laboratory are missing." Empty when all was read.
QString notRead(const FleetSearch& search);

} // namespace FindText

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attention.h"
#include "Fleet/FindingBands.h"
#include "Kit/Core/ViewController.h"
#include "Views/Attention/FindingCell.h"

#include <cstddef>

namespace lodestar
{

/// What the lists of findings have in common. Main thread.

/// Whether a row names its console. Rows below a heading that is the console do not.
enum class ConsoleShown { No, Yes };

FindingCell cellOf(const Findings& findings, const FindingRow& row, ConsoleShown console, WallTime now);

/// What a row is about, as a number: the same in every picture in which the row is there.
std::size_t keyOf(const Findings& findings, const FindingRow& row);
std::size_t keyOf(const Finding& finding);

/// Opens what the finding is about over a screen: the object's details, its console's groups, or the console's
/// connection. Does nothing for a console that was deleted meanwhile.
void openFinding(const ViewController& from, const Finding& finding);

/// Takes the stops of a row for meant, and says so. Does nothing for a row of another kind.
void expectStops(const Findings& findings, const FindingRow& row);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attention.h"
#include "Fleet/FindingBands.h"

#include <QString>

namespace lodestar
{

/// The words of findings. What consoles say (names, states, codes, texts) is never translated and is isolated within a
/// sentence. Pure.
namespace FindingText
{

/// "8 things need attention, 9 events are open", without what is 0.
QString summary(const Findings& findings);
/// "9 events are open"; empty for none.
QString openEvents(const Findings& findings);
/// "8 things need attention"; "1 thing needs attention".
QString needAttention(std::size_t count);
/// "4 of 6 consoles answered in full, 2 min ago"; when that is old, "read 2 h ago"; without the age when none was read.
QString completeness(const FleetReading& fleet, WallTime now);
/// "updating... 3 of 6".
QString updating(const FleetReading& fleet);
/// "2 of 6 consoles did not answer. What they would report is not known."
QString didNotAnswer(const FleetReading& fleet);
/// "3 things needed attention there before."; empty for none.
QString beforeOffline(std::size_t count);
/// "11 more things are not shown."; empty for none.
QString notShown(std::size_t count);

QString band(FindingBand band);
/// As the filter lists what findings are about, "Systems", and within a list of them, "systems".
QString subject(FindingSubject subject);
QString subjectWithin(FindingSubject subject);

/// "Systems, IO servers, partitions, Harbour B": what the filter shows.
QString filtered(const FindingFilter& filter, const std::vector<ConsoleSnapshot>& consoles);
/// The consoles among it: "Harbour B"; empty for all.
QString chosenConsoles(const FindingFilter& filter, const std::vector<ConsoleSnapshot>& consoles);

/// Whether a system in error is incomplete and nothing worse.
bool isIncomplete(const Finding& system);
/// What a row is called: the object, the event's text, or "36 consoles".
QString name(const Findings& findings, const FindingRow& row);
/// What is wrong: "System incomplete, LED on".
QString sentence(const Findings& findings, const FindingRow& row, WallTime now);
/// The console that stands at the row's end: empty for a console's own row.
QString console(const Findings& findings, const FindingRow& row);
/// A row as a sentence for screen readers: name, what is wrong, console, since when.
QString spoken(const Findings& findings, const FindingRow& row, WallTime now);

} // namespace FindingText

} // namespace lodestar

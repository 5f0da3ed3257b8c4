// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"

#include <QString>
#include <QStringList>

namespace lodestar
{

/// Why a console or feed could not be read, for a row: "nothing within 10 s".
QString reasonText(const Error& error);
/// The same as a sentence of the connection screen.
QString reasonVerdict(const Error& error);
/// What a person may try, one step an entry.
QStringList reasonSteps(const Error& error);
/// The same for a feed. One that takes too long is the console's failure: the console itself was reached.
QStringList feedSteps(const Error& error);
/// The code in brackets at the end of a failed stage: "-1202", "401"; empty for none.
QString reasonCode(const Error& error);

} // namespace lodestar

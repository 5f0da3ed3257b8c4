// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Kit/Core/Role.h"

#include <QString>

namespace lodestar::FleetSheetText
{

/// The words of fleet sheets. Pure.

/// "6 consoles".
QString consoles(std::size_t count);
/// Why the file is no sheet, as a sentence.
QString refusal(const Error& error);
/// What is not read of a sheet; empty when everything is.
QString notRead(const FleetSheet& sheet);
/// Why a row cannot be used: "Row 17: no address".
QString unusable(const SheetRow& row);
/// How far a console is: "waiting", "verified", "no answer".
QString stateWord(FleetImport::State state);
Role::State roleOf(FleetImport::State state);
/// Below the word: why it is not verified, what is missing of it, or its version.
QString note(const FleetImport::Row& row);
/// "tried, about 20 s left".
QString timeLeft(std::optional<std::chrono::seconds> left);

} // namespace lodestar::FleetSheetText

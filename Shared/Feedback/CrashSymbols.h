// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/CrashRecord.h"

#include <string>

namespace lodestar
{

/// The crash as text for developers: what happened; a line for each call with its place in its file, and with the
/// function's name where this run has the same file loaded; then the files with their build identifiers, which let the
/// other functions be named later. Slow: it loads and reads debugging information (see SymbolModule.h). Not on the main
/// thread.
std::string symbolisedText(const CrashRecord& record);

/// The same text without function names, for a record whose naming crashed before.
std::string addressText(const CrashRecord& record);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/CrashRecord.h"

#include <string>

namespace lodestar
{

/// The crash as text for people who mend it: what happened, then a line for each call with its place in its file, and
/// the functions' names as far as this run has the same files loaded, then those files with their build identifiers, by
/// which the rest can be named later. Slow: reads debugging information, which is loaded for that (see SymbolModule.h).
/// Not on the main thread.
std::string symbolisedText(const CrashRecord& record);

/// The same without names, when naming them has crashed before.
std::string addressText(const CrashRecord& record);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

/// The system's clipboard. Main thread.
class Clipboard
{
public:
    /// Puts the text there and says so in a toast: "Copied X417-2208", shortened when the text is long. `said` replaces
    /// the text in the toast, as in "21 rows".
    static void copy(const QString& text, const QString& said = {});
};

} // namespace lodestar

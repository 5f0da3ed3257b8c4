// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>

namespace lodestar
{

/// The application's one typeface. Sizes in points are sizes in the scene's units, so they become pixel sizes. Main
/// thread.
struct UIFont {
    /// "Avenir Book" at this size.
    static QFont systemFontOfSize(double size);
    /// The same regular face: nothing in the application is set in bold.
    static QFont boldSystemFontOfSize(double size);

    /// Makes the system font the default and starts loading the faces that replace the named ones, on a thread of its
    /// own. Call when the application object exists; later calls do nothing.
    static void install();
    /// Returns when the faces are loaded. The functions above and the first use of `Appearance` call this themselves.
    static void awaitInstalled();
};

} // namespace lodestar

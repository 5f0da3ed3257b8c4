// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>

namespace lodestar
{

/// The application's one typeface. A size in points is a size in the scene's units, so it becomes a pixel size. Main
/// thread.
struct UIFont {
    /// "Avenir Book" at the size.
    static QFont systemFontOfSize(double size);
    /// The same regular face: nothing in the application is set in bold.
    static QFont boldSystemFontOfSize(double size);
    static QFont fontWithName(const QString& family, double size);

    /// Makes the system font the default and starts bringing the faces that stand in for the named ones into the
    /// process, on a thread of its own. Call once the application object stands; later calls do nothing.
    static void install();
    /// Returns when the faces are there. The functions above and the first use of `Appearance` wait by themselves.
    static void awaitInstalled();
};

} // namespace lodestar

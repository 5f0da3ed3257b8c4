// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

namespace lodestar
{

/// The application's palette: opaque colours, the same in light and dark.
struct UIColor {
    static QColor tesselLightBlue();
    static QColor tesselLightGreen();
    static QColor tesselBlue();
    static QColor selectedBlue();
    static QColor ornisBlue();
    static QColor successGreen();
    static QColor errorRed();
    /// A neutral grey, despite its name.
    static QColor failedRed();
    static QColor dashboardBlue();
    static QColor dashboardRed();
    static QColor dashboardGreen();
    static QColor dashboardGrey();
    static QColor dashboardYellow();
    static QColor dashboardOrange();

    /// The platform's own colours, as in the light appearance. Scenes use `Theme.inkFor` and `Theme.surfaceFor` to get
    /// the present appearance's colours.
    static QColor grayColor();
    static QColor darkGrayColor();
    static QColor lightGrayColor();
    static QColor redColor();
    static QColor orangeColor();
};

} // namespace lodestar

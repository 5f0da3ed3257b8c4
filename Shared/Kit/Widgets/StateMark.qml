// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The shape of a state: a disc for "good", a ring for "off" (idle states too), a triangle for "alert", a diamond for
/// "error", a barred ring for "offline", a broken ring for "incomplete", a dot for "waiting".
Icon {
    property string mark: "good"
    property real scaleFactor: Theme.textScale

    name: mark === "" ? "" : "state_" + mark
    size: 12 * scaleFactor
}

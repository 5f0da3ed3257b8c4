// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A state's shape: "good" a disc, "off" a ring (idle states too), "alert" a triangle, "error" a diamond, "offline" a
/// barred ring.
Icon {
    property string mark: "good"
    property real scaleFactor: Theme.textScale

    name: mark === "" ? "" : "state_" + mark
    size: 12 * scaleFactor
}

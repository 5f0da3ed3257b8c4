// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A count over a tab's picture.
LaterItem {
    /// Empty for none.
    property string text

    wanted: text !== ""
    source: "qrc:/Lodestar/Kit/TabBadgeCount.qml"
}

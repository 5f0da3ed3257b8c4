// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The search field above a list's first row. It starts out of sight; a pull uncovers it and it stays. It goes as soon
/// as the list is moved past it.
LaterItem {
    required property ListView list
    /// Points above the first row while the field is out of sight.
    required property real topSpace
    /// Points of these that a line takes between the field and the first row.
    property real lineSpace: 0
    property bool offered: false
    signal tapped()

    /// Points that the list adds above its first row. They are added at the first touch: without them, a finger could
    /// not uncover the whole field.
    readonly property real space: room ? height + 8 : 0
    property bool room: false
    readonly property real uncovered: list.originY - topSpace - list.contentY

    parent: list.contentItem
    y: list.originY - lineSpace - height - 8
    visible: room && uncovered > 0
    wanted: offered
    source: "qrc:/Lodestar/Kit/PullSearchField.qml"
}

// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The scene of a controller that is shown in a sheet. The sheet draws the bar above it from these and tells what was
/// pressed there.
FocusScope {
    id: content

    property string title
    property string cancelText: qsTr("Cancel")
    property string saveText: qsTr("Save")
    property bool saveEnabled: true
    /// Whether Cancel, and with it Escape, is there now.
    property bool cancelEnabled: true
    signal cancelled()
    signal saved()
    /// The first field, which gets the keyboard once the sheet is up.
    property FormField firstField: null
    /// What the scene needs above the heights that its controller states, which are those of text at 100 %.
    property real extraHeight: 0
    /// What the controller states, without what a keyboard covers; set by the sheet.
    property real statedHeight: 0
    /// How much of the scene is to be seen once the sheet has come to rest, without what a keyboard covers; set by the
    /// sheet.
    property real restingHeight: 0
}

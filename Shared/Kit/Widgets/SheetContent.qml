// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The scene of a controller that is shown in a sheet. The sheet draws its bar from these properties and sends these
/// signals when the bar's buttons are pressed.
FocusScope {
    id: content

    property string title
    property string cancelText: qsTr("Cancel")
    property string saveText: qsTr("Save")
    property bool saveEnabled: true
    /// Escape and the back key do what the button at the end does: for sheets that change things at once, in which the
    /// other button does not lead out.
    property bool escapeSaves: false
    signal cancelled()
    signal saved()
    /// The first field, which gets the keyboard once the sheet is up.
    property FormField firstField: null
    /// Points that the scene needs beyond the heights that its controller states, which hold for text at 100 %.
    property real extraHeight: 0
    /// The height that the controller states, without the part that a keyboard covers; set by the sheet.
    property real statedHeight: 0
    /// The scene's visible height once the sheet is at rest, without the part that a keyboard covers; set by the sheet.
    property real restingHeight: 0
}

// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// What a screen shows when it has no content: a picture and one or two lines, a little above the middle, and a button
/// for the one thing to do. A headline, if there is one, stands above the lines.
LaterItem {
    property string picture
    property string text
    property ImageOutlet imageOutlet: null
    property LabelOutlet labelOutlet: null
    property LabelOutlet headlineOutlet: null
    property string actionText
    signal action()

    readonly property string headline: headlineOutlet !== null && !headlineOutlet.hidden ? headlineOutlet.text : ""
    readonly property string lines: labelOutlet !== null ? labelOutlet.text : text

    visible: (labelOutlet === null || !labelOutlet.hidden) && (imageOutlet === null || !imageOutlet.hidden)
    Accessible.role: Accessible.StaticText
    Accessible.name: (headline === "" ? "" : headline + "\n") + lines

    wanted: visible
    source: "qrc:/Lodestar/Kit/NoContentBody.qml"
}

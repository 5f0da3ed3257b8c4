// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A picture and one or two lines where there is nothing to show, a little above the middle, and the one thing to do
/// about it. A headline, where there is one, stands above the lines.
Item {
    id: view

    property string picture
    property string text
    property string secondText
    property ImageOutlet imageOutlet: null
    property LabelOutlet labelOutlet: null
    property LabelOutlet secondLabelOutlet: null
    property LabelOutlet headlineOutlet: null
    property string actionText
    signal action()

    readonly property string lines: labelOutlet !== null ? labelOutlet.text : text
    readonly property string secondLines: secondLabelOutlet !== null ? secondLabelOutlet.text : secondText

    visible: (labelOutlet === null || !labelOutlet.hidden) && (imageOutlet === null || !imageOutlet.hidden)
    Accessible.role: Accessible.StaticText
    Accessible.name: (headline.visible ? headline.text + "\n" : "") + lines + (secondLines === "" ? "" : "\n" + secondLines)

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -30
        width: Math.min(280 * Theme.textScale, parent.width - 80)

        Icon {
            name: view.imageOutlet !== null ? view.imageOutlet.imageName : view.picture
            size: 96
            color: Theme.ink3
            anchors.horizontalCenter: parent.horizontalCenter
        }
        Item {
            width: 1
            height: 20
        }
        Label {
            id: headline

            visible: view.headlineOutlet !== null && !view.headlineOutlet.hidden && text !== ""
            text: view.headlineOutlet !== null ? view.headlineOutlet.text : ""
            width: parent.width
            bottomPadding: 4 - drop
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            text: view.lines
            size: Theme.stateSize
            color: Theme.ink2
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            visible: text !== "" && (view.secondLabelOutlet === null || !view.secondLabelOutlet.hidden)
            text: view.secondLines
            size: Theme.stateSize
            color: Theme.ink2
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        PlainButton {
            visible: text !== ""
            text: view.actionText
            anchors.horizontalCenter: parent.horizontalCenter
            onClicked: view.action()
        }
    }
}

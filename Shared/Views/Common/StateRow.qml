// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The row of an inventory list. At its start: a name, optionally with a badge before it and a caption below it. At its
/// end: a state with a note below. With large text, state and note stand below the name, the mark before the word.
/// Parts that are not given take no room.
TableCell {
    id: row

    required property cellLabel name
    property string caption
    property string badge
    /// Points from the row's start to the name, at 100 % text.
    property real nameStart: Theme.rowStart
    property cellLabel state
    property string note
    property bool chevron: false
    leadsOn: chevron

    readonly property bool stacked: Theme.stacked
    readonly property real textStart: Theme.rowStart + Math.round((nameStart - Theme.rowStart) * Theme.badgeScale)
    readonly property real trailing: Theme.rowEnd + (chevron ? 22 : 0)
    readonly property bool hasState: state.text !== ""
    readonly property bool hasSecondLine: caption !== "" || note !== ""
    /// Gap between the parts at the start and the parts at the end.
    readonly property int gap: 12
    readonly property real room: width - textStart - trailing

    implicitHeight: (stacked ? stackedHeight : words.height) + Math.round((stacked ? 18 : 10) * Theme.textScale)

    readonly property real stackedHeight: words.height + (hasState ? word.height : 0) + (note !== "" ? noteLabel.height : 0)

    // The note is measured separately: the label's implicit width depends on its width, which depends on this. One
    // point is added because the layout may round glyph widths up.
    TextMetrics {
        id: noteMeasure

        font: noteLabel.font
        text: row.note
    }
    Icon {
        visible: row.badge !== ""
        name: row.badge
        size: Math.round(20 * Theme.badgeScale)
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        y: content.y + nameLabel.y + (nameLabel.lineHeight - height) / 2
    }
    Item {
        id: content

        anchors.left: parent.left
        anchors.leftMargin: row.textStart
        anchors.right: parent.right
        anchors.rightMargin: row.trailing
        y: Math.round((row.height - height) / 2)
        height: row.stacked ? row.stackedHeight : words.height

        Column {
            id: words

            anchors.left: parent.left
            width: row.stacked ? parent.width : nameLabel.width

            MatchLabel {
                id: nameLabel

                text: row.name.text
                match: row.name.match
                wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
                width: row.stacked ? row.room : Math.max(0, row.room - (row.hasState ? word.width + row.gap : 0))
                Accessible.ignored: true
            }
            Label {
                visible: row.hasSecondLine && (!row.stacked || row.caption !== "")
                text: row.caption
                size: Theme.captionSize
                color: Theme.ink2
                elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
                wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
                width: row.stacked ? row.room
                                   : Math.max(0, row.room - (row.note !== "" ? noteLabel.width + noteLabel.inset + row.gap : 0))
                // A Column does not mirror its children.
                x: Theme.mirrored ? words.width - width : 0
                Accessible.ignored: true
            }
        }
        StateWord {
            id: word

            visible: row.hasState
            word: row.state.text
            role: row.state.state
            markLeads: row.stacked
            wraps: row.stacked
            platePadding: row.hasSecondLine && !row.stacked ? 0 : 2
            width: row.stacked ? row.room : Math.min(implicitWidth, Math.round(row.room * 0.5))
            // x and not anchors: an item whose anchor changes from one side to the other loses its width.
            x: row.stacked !== Theme.mirrored ? 0 : parent.width - width
            y: row.stacked ? words.height : Math.round((nameLabel.lineHeight - height) / 2)
            Accessible.ignored: true
        }
        Label {
            id: noteLabel

            /// The note stands below the state's word, not below its mark.
            readonly property real inset: word.visible ? word.markSpace : 0

            visible: row.note !== ""
            text: row.note
            size: Theme.captionSize
            color: Theme.ink2
            elide: row.stacked ? Text.ElideNone : Text.ElideMiddle
            wrapMode: row.stacked ? Text.Wrap : Text.NoWrap
            horizontalAlignment: row.stacked ? Text.AlignLeft : Text.AlignRight
            width: row.stacked ? row.room : Math.min(Math.ceil(noteMeasure.advanceWidth) + 1, Math.round(row.room * 0.5))
            x: row.stacked !== Theme.mirrored ? (row.stacked ? 0 : inset) : parent.width - width - (row.stacked ? 0 : inset)
            y: row.stacked ? words.height + (row.hasState ? word.height : 0) : nameLabel.height
            Accessible.ignored: true
        }
    }
    Chevron {
        visible: row.chevron
        chosen: row.chosen
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        anchors.verticalCenter: parent.verticalCenter
    }
}

// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// The choices of a sheet side by side, each a picture above its title and its detail.
Item {
    id: tiles

    required property MenuOutlet outlet
    /// Choices in a row.
    required property int columns

    readonly property real column: width / columns
    readonly property int last: outlet.choices.length - (outlet.cancelIndex >= 0 ? 2 : 1)
    /// All tiles are as high as the highest, once that is known.
    readonly property real tileHeight: Math.round(Math.max(96 * Theme.textScale, highest))
    property real highest: 0

    implicitHeight: grid.height
    width: parent?.width ?? 0
    Keys.onUpPressed: (event) => event.accepted = go(current() - columns)
    Keys.onDownPressed: (event) => event.accepted = go(current() + columns)
    Keys.onPressed: (event) => {
        if (event.key === Qt.Key_Home) {
            event.accepted = go(0);
        } else if (event.key === Qt.Key_End) {
            event.accepted = go(last);
        }
    }

    function current(): int {
        for (let i = 0; i <= last; ++i) {
            if (choices.itemAt(i)?.activeFocus) {
                return i;
            }
        }
        return -1;
    }
    /// Gives the keyboard to a tile. Beyond the first and the last one the keys belong to the sheet.
    function go(place: int): bool {
        if (place < 0 || place > last) {
            return false;
        }
        choices.itemAt(place).forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    component Tile: Pressable {
        id: tile

        required property int index
        required property menuChoice modelData

        readonly property bool isCancel: index === tiles.outlet.cancelIndex
        readonly property real wantedHeight: isCancel ? 0 : words.height + 68
        readonly property color ink: modelData.destructive ? Theme.systemRedInk : Theme.ink

        onWantedHeightChanged: tiles.highest = Math.max(tiles.highest, wantedHeight)
        visible: !isCancel
        text: modelData.title
        width: tiles.column
        height: tiles.tileHeight
        Accessible.role: Accessible.MenuItem
        Accessible.name: Sentence.joined([text, modelData.detail])
        onClicked: tiles.outlet.choose(index)

        Rectangle {
            anchors.fill: parent
            anchors.margins: 4
            radius: Theme.cardRadius
            color: tile.pressed ? Theme.pressed : tile.hovered ? Theme.wash : "transparent"

            Behavior on color {
                ColorAnimation { duration: tile.pressed ? Theme.pressIn : Theme.pressOut }
            }
            FocusRing {
                anchors.fill: parent
                shown: tile.visualFocus
            }
        }
        Icon {
            name: tile.modelData.imageName
            color: tile.modelData.destructive ? Theme.systemRedInk : Theme.accentInk
            anchors.horizontalCenter: parent.horizontalCenter
            y: 20
        }
        Column {
            id: words

            x: 8
            y: 52
            width: parent.width - 16

            Label {
                text: tile.text
                size: Theme.stateSize
                color: tile.ink
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Label {
                text: tile.modelData.detail
                visible: text !== ""
                size: Theme.captionSize
                color: Theme.ink2
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }

    Hairline {
        visible: tiles.outlet.title !== ""
        x: Theme.mirrored ? 15 : 10
        width: parent.width - 25
    }
    Grid {
        id: grid

        columns: tiles.columns
        width: parent.width

        Repeater {
            id: choices

            model: tiles.outlet.choices

            Tile {}
        }
    }
}

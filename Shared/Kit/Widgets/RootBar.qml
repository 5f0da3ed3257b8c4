// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The bar of a tab's first screen: a large title, aligned with the text of the cards below, and buttons at the end.
Item {
    id: bar

    property ViewController controller: null
    property string title: controller !== null ? controller.title : ""
    property alias trailing: ends.data
    property bool scrolled: false
    /// Greatest width of the content below.
    property int measure: Theme.measure

    /// The title was held or clicked with the right button: offers what the bar has no room for.
    signal titleHeld()

    readonly property real margin: Theme.sideMargin(width, measure)

    implicitHeight: Theme.rootBarHeight

    /// Whether so many buttons leave the title its size.
    function fits(buttons: int): bool {
        return margin + Theme.rowStart - 2 + titleMeasure.advanceWidth + 8 + buttons * Theme.target + ends.anchors.rightMargin <= width;
    }

    TextMetrics {
        id: titleMeasure

        font.family: Theme.family
        font.pixelSize: Math.round(Theme.rootTitleSize * Theme.barScale)
        text: bar.title
    }
    Label {
        // Large letters start a little inside their box; 2 points less put them on the edge.
        anchors.left: parent.left
        anchors.leftMargin: bar.margin + Theme.rowStart - 2
        anchors.right: ends.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: bar.title
        size: Theme.rootTitleSize
        scaleFactor: Theme.barScale
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        elide: Text.ElideMiddle
        Accessible.role: Accessible.Heading
        Accessible.name: text

        TapHandler {
            onLongPressed: bar.titleHeld()
        }
        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: bar.titleHeld()
        }
    }
    Row {
        id: ends

        anchors.right: parent.right
        anchors.rightMargin: bar.margin - (bar.margin < 24 ? 4 : -4)
        anchors.verticalCenter: parent.verticalCenter
    }
    Hairline {
        visible: bar.scrolled
        width: parent.width
        anchors.bottom: parent.bottom
    }
}

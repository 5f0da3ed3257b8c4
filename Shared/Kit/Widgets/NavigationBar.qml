// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The bar of a pushed screen: the back button, a title or a title view in the middle, buttons at the end. A screen
/// without a way back can have buttons at the start.
Item {
    id: bar

    /// The screen's controller, which gives the title and says whether there is a way back.
    property ViewController controller: null
    property string title: controller !== null ? controller.title : ""
    /// Replaces the title; null shows the title.
    property Item titleView: null
    property alias leading: starts.data
    property alias trailing: ends.data
    /// Content has slid beneath the bar.
    property bool scrolled: false
    property bool canGoBack: false
    /// Whether the screen stands in the end column: the way back is the start column's.
    readonly property bool atEnd: StackPlace.column === StackPlace.End
    property string backTitle
    /// The widest that the content below may be; the buttons stand above its ends.
    property real measure: Theme.measure
    signal back()

    readonly property int edge: width < 600 ? 4 : 12
    readonly property real content: Math.min(width, measure + 48)
    readonly property real side: (width - content) / 2 + (width > content ? 24 : edge)
    /// Points that the title leaves at the start and at the end.
    readonly property real beforeTitle: side + Math.max(backButton.visible ? backButton.width : starts.width, Theme.target)
    readonly property real afterTitle: side + Math.max(ends.width, Theme.target)
    /// Off the middle where a long word at the start would leave too little there.
    readonly property bool offMiddle: starts.width > 0
                                      && width - 2 * Math.max(beforeTitle, afterTitle) <= titleMeasure.advanceWidth
    readonly property real room: Math.max(0, width - (offMiddle ? beforeTitle + afterTitle
                                                                : 2 * Math.max(beforeTitle, afterTitle)))
    /// The title has precedence: where it and the previous screen's name do not both fit, only the chevron is shown.
    readonly property bool backTitleFits: width - 2 * (side + Math.min(backButton.wantedWidth, 132)) >= 200

    implicitHeight: Theme.barHeight

    Component.onCompleted: {
        // Asked only once, so that a screen that was taken off its stack still shows its back button while it slides
        // out.
        if (controller !== null && controller.canGoBack()) {
            canGoBack = true;
            backTitle = controller.backButtonTitle();
        }
    }
    onBack: {
        if (controller !== null) {
            controller.goBack();
        }
    }
    onTitleViewChanged: {
        if (titleView !== null) {
            titleView.parent = middle;
        }
    }

    TextMetrics {
        id: backMeasure

        font.family: Theme.family
        font.pixelSize: Math.round(backButton.size * backButton.scaleFactor)
        text: bar.backTitle
    }
    TextMetrics {
        id: titleMeasure

        font.family: Theme.family
        font.pixelSize: titleLabel.font.pixelSize
        text: bar.title
    }
    PlainButton {
        id: backButton

        visible: bar.canGoBack && !bar.atEnd
        readonly property real wantedWidth: backMeasure.advanceWidth + 44

        text: bar.backTitleFits ? bar.backTitle : ""
        leftPadding: Theme.mirrored ? 12 : 32
        rightPadding: Theme.mirrored ? 32 : 12
        implicitWidth: text === "" ? Theme.target : Math.min(wantedWidth, 132)
        scaleFactor: Theme.barScale
        anchors.left: parent.left
        anchors.leftMargin: bar.side
        anchors.verticalCenter: parent.verticalCenter
        Accessible.name: qsTr("Back")
        onClicked: bar.back()

        Icon {
            name: "back"
            directional: true
            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            color: backButton.hovered ? backButton.hoverInk : backButton.ink
            opacity: backButton.pressed ? 0.55 : 1
        }
    }
    Item {
        id: middle

        anchors.verticalCenter: parent.verticalCenter
        x: !bar.offMiddle ? (bar.width - width) / 2 : Theme.mirrored ? bar.afterTitle : bar.beforeTitle
        width: bar.titleView !== null ? Math.min(bar.titleView.implicitWidth, bar.room) : bar.room
        height: bar.titleView !== null ? bar.titleView.height : parent.height

        Binding {
            target: bar.titleView
            property: "width"
            value: middle.width
            when: bar.titleView !== null
        }

        Label {
            id: titleLabel

            visible: bar.titleView === null
            text: bar.title
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            line: 24
            scaleFactor: Theme.barScale
            color: Theme.titleInk
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            elide: Text.ElideMiddle
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
    Row {
        id: starts

        anchors.left: parent.left
        anchors.leftMargin: bar.side
        anchors.verticalCenter: parent.verticalCenter
    }
    Row {
        id: ends

        anchors.right: parent.right
        anchors.rightMargin: bar.side
        anchors.verticalCenter: parent.verticalCenter
    }
    // Readers say what has the keyboard. A new screen on which nothing has it says its title instead.
    Announcement {
        id: announcement
    }
    Timer {
        interval: 600
        running: true
        onTriggered: {
            const item = bar.Window.activeFocusItem;
            if (!(item instanceof AccessibleItem) && !(item instanceof TextInput)) {
                announcement.say(bar.titleView !== null ? bar.titleView.Accessible.name : bar.title);
            }
        }
    }
    Hairline {
        visible: bar.scrolled
        width: parent.width
        anchors.bottom: parent.bottom
    }
}

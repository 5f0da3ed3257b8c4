// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The sheet that slides up over a screen: a bar of 44 on top of the content, whose height the presentation gives. Only
/// Cancel or Escape leads out; the screen behind takes no press. The content's controller lives as long as the sheet
/// can be seen, even if the presentation ends earlier.
OverlayPopup {
    id: sheet

    /// The screen that presents the sheet. The screen steps back while the sheet is up, if the presentation wants it.
    required property SceneView view
    readonly property SemiModalPresentation presentation: view.presentation
    readonly property Item underlay: view.body

    readonly property SheetContent sheetContent: host.scene as SheetContent
    readonly property int barHeight: Math.max(Theme.target, Math.round(22 * Theme.barScale) + 16)
    readonly property real maximumHeight: parent !== null ? parent.height - 24 : 0
    readonly property real extraHeight: sheetContent !== null ? sheetContent.extraHeight : 0
    readonly property var inputMethod: Qt.inputMethod
    /// Points of the sheet that the keyboard covers.
    property real coveredHeight: inputMethod.visible ? inputMethod.keyboardRectangle.height : 0
    property real bodyHeight: 0
    /// The end value of the animation of `bodyHeight`.
    property real statedHeight: 0
    property bool complete: false
    /// 1 is up, 0 is away.
    property real slide: 0

    width: parent !== null ? Math.min(parent.width, Theme.sheetMaxWidth) : 0
    height: Math.min(barHeight + bodyHeight + extraHeight, maximumHeight)
    x: parent !== null ? Math.round((parent.width - width) / 2) : 0
    y: parent !== null ? parent.height - height * slide : 0

    function follow() {
        if (presentation !== null) {
            if (!visible) {
                keyboard.remember();
            }
            statedHeight = presentation.height;
            bodyHeight = statedHeight;
            host.controller = presentation.controller;
            open();
        } else {
            close();
        }
    }

    onPresentationChanged: {
        if (complete) {
            follow();
        }
    }
    Component.onCompleted: {
        complete = true;
        follow();
    }
    onOpened: {
        if (sheetContent !== null && sheetContent.firstField !== null) {
            sheetContent.firstField.edit(Qt.OtherFocusReason);
        }
    }
    onClosed: {
        host.controller = null;
        keyboard.giveBack();
    }

    Connections {
        target: sheet.presentation
        function onHeightChanged() {
            sheet.statedHeight = sheet.presentation.height;
            resizing.to = sheet.statedHeight;
            resizing.restart();
        }
    }
    NumberAnimation {
        id: resizing

        target: sheet
        property: "bodyHeight"
        duration: Theme.sheetBack
        easing.type: Easing.OutCubic
    }
    Binding {
        target: sheet.sheetContent
        property: "restingHeight"
        value: Math.min(sheet.statedHeight + sheet.extraHeight,
                        sheet.maximumHeight - sheet.barHeight) - sheet.coveredHeight
        when: sheet.sheetContent !== null
    }
    Binding {
        target: sheet.sheetContent
        property: "statedHeight"
        value: sheet.statedHeight - sheet.coveredHeight
        when: sheet.sheetContent !== null
    }
    Binding {
        target: sheet.underlay
        property: "scale"
        value: 1 - 0.06 * sheet.slide
        when: sheet.presentation !== null && sheet.presentation.pushParentBack && sheet.underlay !== null
    }

    enter: Transition {
        NumberAnimation {
            property: "slide"
            to: 1
            duration: Theme.sheetIn
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "slide"
            to: 0
            duration: Theme.sheetOut
            easing.type: Easing.OutCubic
        }
    }
    background: Item {
        BoxShadow {
            anchors.fill: parent
            radius: Theme.sheetRadius
            blur: 28
            offsetY: -6
            strength: Theme.dark ? 0.5 : 0.14
        }
        Rectangle {
            width: parent.width
            height: parent.height + Theme.sheetRadius
            radius: Theme.sheetRadius
            color: Theme.raised
            border.width: Theme.outlineWidth
            border.color: Theme.outline
        }
    }
    contentItem: ModalLayer {
        focus: true
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: titleLabel.text
        Keys.onEscapePressed: sheet.leave()
        Keys.onBackPressed: sheet.leave()

        PlainButton {
            id: cancelButton

            visible: text !== ""
            text: sheet.sheetContent !== null ? sheet.sheetContent.cancelText : ""
            scaleFactor: Theme.barScale
            leftPadding: 20
            rightPadding: 20
            height: sheet.barHeight
            anchors.left: parent.left
            onClicked: sheet.cancel()
        }
        Label {
            id: titleLabel

            readonly property real side: Math.max(cancelButton.width, saveButton.width)
            /// Off the middle where a long word at one side would leave too little there.
            readonly property bool centred: parent.width - 2 * side >= titleMeasure.advanceWidth + 1

            text: sheet.sheetContent !== null && sheet.sheetContent.title !== "" ? sheet.sheetContent.title
                                                                                 : host.controller?.title ?? ""
            scaleFactor: Theme.barScale
            color: Theme.titleInk
            horizontalAlignment: Text.AlignHCenter
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            elide: Text.ElideMiddle
            x: centred ? side : Theme.mirrored ? saveButton.width : cancelButton.width
            width: parent.width - (centred ? 2 * side : cancelButton.width + saveButton.width)
            y: (sheet.barHeight - height) / 2
            Accessible.ignored: true
        }
        TextMetrics {
            id: titleMeasure

            font: titleLabel.font
            text: titleLabel.text
        }
        PlainButton {
            id: saveButton

            visible: text !== ""
            text: sheet.sheetContent !== null ? sheet.sheetContent.saveText : ""
            enabled: sheet.sheetContent !== null && sheet.sheetContent.saveEnabled
            scaleFactor: Theme.barScale
            leftPadding: 20
            rightPadding: 20
            height: sheet.barHeight
            anchors.right: parent.right
            onClicked: {
                if (sheet.sheetContent !== null) {
                    sheet.sheetContent.saved();
                }
            }
        }
        Hairline {
            width: parent.width
            y: sheet.barHeight - height
        }
        SceneHost {
            id: host

            focus: true
            y: sheet.barHeight
            width: parent.width
            height: parent.height - y
            clip: true
        }
    }

    function leave() {
        if (sheetContent !== null && sheetContent.escapeSaves) {
            sheetContent.saved();
        } else {
            cancel();
        }
    }
    function cancel() {
        if (sheetContent !== null) {
            sheetContent.cancelled();
        }
    }
}

// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// One field of a form: its name and its text. The text and the outlet follow each other.
Item {
    id: field

    required property string label
    required property FieldOutlet outlet
    property string placeholder
    property bool secure: false
    /// Hides the readable text in pictures of the screen; a secure field is always hidden there.
    property bool confidential: false
    property int inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
    property int rowHeight: 56
    property real labelWidth: 112
    /// A second line below the name; empty for none.
    property string labelDetail
    /// A remark below the field's text; empty for none.
    property string hint
    /// The field to which Return leads; null makes Return end editing.
    property FormField next: null
    signal returnPressed()

    readonly property bool stacked: Theme.stacked
    readonly property real detailHeight: labelDetail !== "" ? Math.round(16 * Theme.textScale) : 0

    implicitHeight: Math.round(rowHeight * (stacked ? Theme.textScale * 1.3 : Theme.textScale))
                    + (stacked ? detailHeight : 0)
    width: parent !== null ? parent.width : implicitWidth
    visible: !outlet.hidden
    enabled: outlet.enabled
    opacity: enabled ? 1 : 0.5

    function edit(reason: int) {
        input.forceActiveFocus(reason);
    }

    /// Without the keyboard, the field shows the beginning of its text; the caret stays where it is.
    function showStart() {
        if (!input.activeFocus) {
            input.ensureVisible(0);
        }
    }

    // A press anywhere on the row edits the field.
    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onClicked: input.forceActiveFocus(Qt.MouseFocusReason)
    }
    Label {
        id: name

        text: field.label
        size: Theme.stateSize
        color: detail.visible ? Theme.ink : Theme.ink2
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart
        y: field.stacked ? 8 : (parent.height - height - field.detailHeight) / 2
        width: field.stacked ? parent.width - Theme.rowStart - Theme.rowEnd : field.labelWidth
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Label {
        id: detail

        visible: text !== ""
        text: field.labelDetail
        size: Theme.captionSize
        line: 16
        color: Theme.ink3
        anchors.left: name.left
        y: name.y + name.height
        width: name.width
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    InputField {
        id: input

        label: Sentence.joined([field.label, field.labelDetail])
        outlet: field.outlet
        secretSwitch: field.secure ? eye : null
        anchors.left: parent.left
        anchors.leftMargin: Theme.rowStart + (field.stacked ? 0 : field.labelWidth)
        anchors.right: eye.visible ? eye.left : parent.right
        anchors.rightMargin: eye.visible ? 0 : Theme.rowEnd
        y: field.stacked ? name.y + name.height + field.detailHeight : 0
        height: parent.height - y - (hintLabel.visible ? hintLabel.height : 0)
        topPadding: Appearance.textDrop(font.pixelSize, height, Screen.devicePixelRatio)
        verticalAlignment: TextInput.AlignTop
        font.pixelSize: Math.round(Theme.bodySize * Theme.textScale)
        clip: contentWidth > width
        inputMethodHints: field.inputMethodHints | (field.secure ? Qt.ImhHiddenText | Qt.ImhSensitiveData : 0)
        Privacy.covered: field.confidential || field.secure
        onActiveFocusChanged: field.showStart()
        onContentSizeChanged: field.showStart()
        onWidthChanged: field.showStart()
        EnterKey.type: field.next !== null ? Qt.EnterKeyNext : Qt.EnterKeyDone
        onAccepted: {
            // Handlers of `returnPressed` may rely on the field having given up the keyboard.
            focus = false;
            field.returnPressed();
            if (field.next !== null) {
                field.next.edit(Qt.TabFocusReason);
            }
        }

        Label {
            visible: input.text === "" && input.preeditText === ""
            text: field.placeholder
            color: Theme.ink3
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            anchors.leftMargin: Theme.caretRoom
            anchors.right: parent.right
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    Label {
        id: hintLabel

        visible: text !== ""
        text: field.hint
        size: Theme.captionSize
        color: Theme.systemOrange
        anchors.left: input.left
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd
        y: parent.height - height - (field.stacked ? 0 : 6)
        elide: Text.ElideRight
        Accessible.role: Accessible.Notification
        Accessible.name: text
    }
    SecretSwitch {
        id: eye

        field: input
        visible: field.secure && input.text !== ""
        anchors.right: parent.right
        anchors.rightMargin: Theme.rowEnd - 10
        anchors.verticalCenter: input.verticalCenter
    }
    FocusRing {
        anchors.fill: parent
        anchors.margins: 2
        shown: input.activeFocus && (input.focusReason === Qt.TabFocusReason || input.focusReason === Qt.BacktabFocusReason)
    }
}

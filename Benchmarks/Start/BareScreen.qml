// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Controls.Basic

ApplicationWindow {
    width: 390
    height: 844
    visible: true
    title: "Bare screen"

    Page {
        anchors.fill: parent
        header: ToolBar {
            Label {
                anchors.centerIn: parent
                text: "Bare screen"
            }
        }

        Column {
            anchors.centerIn: parent
            spacing: 12
            Label {
                text: "Nothing behind it"
            }
            Button {
                text: "Close"
                onClicked: Qt.quit()
            }
        }
    }
}

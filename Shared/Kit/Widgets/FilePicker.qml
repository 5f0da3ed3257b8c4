// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Dialogs
import Lodestar.Kit

/// The system's dialogue for one file; Qt's own where the system has none.
FileDialog {
    required property FileChoice choice

    fileMode: choice.saves ? FileDialog.SaveFile : FileDialog.OpenFile
    currentFolder: choice.folder
    nameFilters: choice.filter === "" ? [] : [choice.filter]
    acceptLabel: choice.saves ? qsTr("Save") : qsTr("Open")
    rejectLabel: qsTr("Cancel")
    onAccepted: choice.choose(selectedFile)
    onRejected: choice.choose("")
    Component.onCompleted: {
        if (choice.name !== "") {
            selectedFile = choice.folder + "/" + encodeURIComponent(choice.name);
        }
    }
}

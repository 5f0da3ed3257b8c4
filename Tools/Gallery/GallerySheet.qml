// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

SheetContent {
    id: sheet

    required property var controller

    title: "Add Corvel"
    firstField: name
    onCancelled: controller.cancel()

    GroupCard {
        width: parent.width
        surface: "transparent"
        behind: "transparent"

        FormField {
            id: name

            objectName: "name"
            label: "Name"
            outlet: sheet.controller.nameField
            next: address
        }
        FormField {
            id: address

            objectName: "address"
            label: "Address"
            placeholder: "Host name or address"
            outlet: sheet.controller.addressField
        }
        FormField {
            label: "User ID"
            outlet: sheet.controller.userField
        }
        FormField {
            label: "Password"
            secure: true
            outlet: sheet.controller.passwordField
        }
        StatusLine {
            width: parent.width
            outlet: sheet.controller.status
        }
    }
}

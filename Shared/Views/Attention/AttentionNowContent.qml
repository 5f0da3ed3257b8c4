// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// The segment Now: a summary over what is wrong. Where nothing is, a picture that is calm only if everything is known.
FocusScope {
    id: content

    required property AttentionNowController controller
    required property AttentionViewController attention
    readonly property Flickable scrollView: table.flickable
    readonly property int look: controller.look

    CardTable {
        id: table

        table: content.controller.tableView
        label: qsTr("Now")
        delegate: FindingDelegate {}
        refreshControl: content.attention.refreshControl
        topSpace: 0
        visible: content.look !== AttentionNowController.NoConsoles
        focus: true
        anchors.fill: parent
        lineSpace: header.height
        onSwipeButtonTapped: (section, row) => content.controller.expectStop(section, row)

        // Lies in the margin instead of a header: in Qt 6.4 a list makes no header of a bound component.
        AttentionNowHeader {
            id: header

            parent: table.flickable.contentItem
            controller: content.controller
            attention: content.attention
            width: table.width
            y: table.flickable.originY - height
        }
    }
    NoContent {
        anchors.fill: parent
        visible: content.look === AttentionNowController.Clear
        imageOutlet: content.controller.noDataImage
        headlineOutlet: content.controller.noDataHeadline
        labelOutlet: content.controller.noDataLabel
    }
    NoContent {
        anchors.fill: parent
        visible: content.look === AttentionNowController.NoConsoles
        picture: "no_data_consoles"
        text: qsTr("No consoles yet.")
        actionText: qsTr("Add Corvel")
        onAction: content.attention.addCorvel()
    }
    Announcement {
        id: announcement
    }
    Connections {
        target: content.controller
        function onAnnounced() {
            announcement.say(content.controller.announcement);
        }
    }
}

// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Shows a console's facts about itself.
DetailScene {
    id: scene

    readonly property MCViewController information: controller as MCViewController
    readonly property bool hasNothing: information.tableView.hidden && !information.fetchingActivityIndicator.animating

    label: scene.information.header.titleLabel.text
    rightBarButton: scene.information.rightBarButton
    titleView: TitleView {
        titleOutlet: scene.information.header.titleLabel
        subtitleOutlet: scene.information.header.subtitleLabel
    }

    NoContent {
        anchors.fill: parent
        visible: scene.hasNothing
        picture: "no_data_consoles"
        text: scene.information.contentLabel.hidden ? qsTr("This console has told nothing of itself.")
                                                 : scene.information.contentLabel.text
    }
    Spinner {
        outlet: scene.information.fetchingActivityIndicator
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -30
    }
}

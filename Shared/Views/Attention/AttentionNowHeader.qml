// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// What stands above the rows: the summary; or what the filter shows; or, where nothing known is wrong but not
/// everything is known, a picture that says so.
Column {
    id: header

    required property AttentionNowController controller
    required property AttentionViewController attention

    readonly property real side: Theme.sideMargin(width, Theme.measure) + Theme.rowStart
    readonly property int look: controller.look
    readonly property bool filtered: look === AttentionNowController.Rows && !controller.filterLabel.hidden
    readonly property bool summed: look === AttentionNowController.Rows && !filtered

    bottomPadding: summed ? 8 : look === AttentionNowController.Unknown ? 20 : 0

    Label {
        visible: header.summed && !header.controller.summaryLabel.hidden
        text: header.controller.summaryLabel.text
        size: Theme.stateSize
        x: header.side
        width: header.width - 2 * x
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Item {
        id: completeness

        readonly property LabelOutlet label: header.controller.completenessLabel
        readonly property bool alert: label.state === Role.State.Alert
        readonly property real markSpace: mark.visible ? mark.width + 6 : spinner.visible ? spinner.width + 6 : 0

        visible: header.summed && !label.hidden
        x: header.side
        width: header.width - 2 * x
        height: words.height + 2
        Accessible.role: Accessible.StaticText
        Accessible.name: label.text

        StateMark {
            id: mark

            visible: !header.controller.completenessMark.hidden
            name: header.controller.completenessMark.imageName
            color: words.color
            x: Theme.mirrored ? parent.width - width : 0
            y: 2 + (words.lineHeight - height) / 2
        }
        Spinner {
            id: spinner

            outlet: header.controller.updatingIndicator
            size: Math.round(16 * Theme.badgeScale)
            x: Theme.mirrored ? parent.width - width : 0
            y: 2 + (words.lineHeight - height) / 2
            Accessible.ignored: true
        }
        Label {
            id: words

            text: completeness.label.text
            size: Theme.captionSize
            color: completeness.alert ? Theme.orangeOnGround : Theme.ink2
            x: Theme.mirrored ? 0 : completeness.markSpace
            y: 2
            width: parent.width - completeness.markSpace
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    Item {
        visible: header.filtered
        width: header.width
        height: line.height - 8

        ChosenLine {
            id: line

            text: header.controller.filterLabel.text
            width: parent.width
            onAction: header.attention.showAll()
        }
    }
    // Below the last card it would be, if there were a card.
    Label {
        visible: header.filtered && header.controller.tableView.rows === 0
        text: header.controller.notShownLabel.text
        size: Theme.captionSize
        color: Theme.ink2
        x: header.side
        width: header.width - 2 * x
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Item {
        visible: header.look === AttentionNowController.Unknown
        width: header.width
        height: nothing.height + 32
        Accessible.role: Accessible.StaticText
        Accessible.name: headline.text + "\n" + explanation.text

        Column {
            id: nothing

            y: 32
            width: Math.min(280 * Theme.textScale, parent.width - 80)
            anchors.horizontalCenter: parent.horizontalCenter

            Icon {
                name: header.controller.noDataImage.imageName
                size: 96
                color: Theme.ink3
                anchors.horizontalCenter: parent.horizontalCenter
            }
            Item {
                width: 1
                height: 20
            }
            Label {
                id: headline

                text: header.controller.noDataHeadline.text
                width: parent.width
                bottomPadding: 4 - drop
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Label {
                id: explanation

                text: header.controller.noDataLabel.text
                size: Theme.stateSize
                color: header.controller.noDataLabel.state === Role.State.Alert ? Theme.orangeOnGround : Theme.ink2
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }
}

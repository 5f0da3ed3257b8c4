// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Shows a rich text of the application's package.
ReadingPage {
    id: scene

    readonly property RichDocumentViewController screen: controller as RichDocumentViewController

    model: screen.webview.paragraphs
    delegate: Item {
        id: row

        required property richParagraph modelData
        required property int index
        readonly property real scaled: Theme.textScale
        // The indent shrinks where the text is large for the width.
        readonly property real start: Math.min(modelData.left * scaled, scene.textWidth / 4)

        width: ListView.view?.width ?? 0
        height: Math.ceil(body.y + body.height + modelData.after * scaled)
        Accessible.role: Accessible.StaticText
        Accessible.name: modelData.marker === "" ? modelData.text : modelData.marker + " " + modelData.text

        SelectionMark {
            textStart: scene.textStart
            textWidth: scene.textWidth
            visible: row.index >= scene.firstSelected && row.index <= scene.lastSelected
        }
        Text {
            id: marker

            visible: text !== ""
            text: row.modelData.marker
            textFormat: Text.PlainText
            font.family: Theme.family
            font.pixelSize: Math.round(row.modelData.size * row.scaled)
            color: Theme.ink
            LayoutMirroring.enabled: false
            x: scene.textStart + Math.min(row.modelData.markerLeft * row.scaled, row.start)
            y: body.y
            lineHeight: 1.2
            Accessible.ignored: true
        }
        Text {
            id: body

            // A blank gives an empty line the height of a written one.
            text: row.modelData.text === "" ? "&nbsp;"
                                            : scene.screen.webview.markup(row.modelData, row.scaled, Theme.card, Theme.ink)
            textFormat: Text.RichText
            font.family: Theme.family
            font.pixelSize: Math.round(row.modelData.size * row.scaled)
            color: Theme.ink
            wrapMode: Text.Wrap
            lineHeight: 1.2
            horizontalAlignment: Text.AlignLeft
            LayoutMirroring.enabled: false
            x: scene.textStart + row.start
            y: row.modelData.before * row.scaled
            width: scene.textWidth - row.start
            Accessible.ignored: true
        }
    }
}

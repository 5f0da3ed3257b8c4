// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit
import Lodestar.Views

/// Shows a rich text of the application's package.
ReadingPage {
    id: scene

    readonly property RichDocumentViewController screen: controller as RichDocumentViewController

    model: screen.webview
    delegate: Item {
        id: row

        required property richParagraph paragraph
        required property int place
        readonly property real scaled: Theme.textScale
        // Indents shrink where the text is large for the width.
        readonly property real start: Math.min(paragraph.left * scaled, scene.textWidth / 4)
        readonly property real end: Math.min(paragraph.right * scaled, scene.textWidth / 4)

        width: ListView.view?.width ?? 0
        height: Math.ceil(body.y + body.height + paragraph.after * scaled)
        Accessible.role: Accessible.StaticText
        Accessible.name: paragraph.marker === "" ? paragraph.text : paragraph.marker + " " + paragraph.text

        Text {
            id: marker

            visible: text !== ""
            text: row.paragraph.marker
            textFormat: Text.PlainText
            font.family: Theme.family
            font.pixelSize: Math.round(row.paragraph.size * row.scaled)
            color: Theme.ink
            LayoutMirroring.enabled: false
            x: scene.textStart + Math.min(row.paragraph.markerLeft * row.scaled, row.start)
            y: body.y
            lineHeight: 1.2
            Accessible.ignored: true
        }
        Text {
            id: body

            // A blank gives an empty line the height of a written one.
            text: row.paragraph.text === "" ? "&nbsp;"
                                            : scene.screen.webview.markup(row.place, row.scaled, Theme.card, Theme.ink)
            textFormat: Text.RichText
            font.family: Theme.family
            font.pixelSize: Math.round(row.paragraph.size * row.scaled)
            color: Theme.ink
            wrapMode: Text.Wrap
            lineHeight: 1.2
            horizontalAlignment: row.paragraph.alignment
            LayoutMirroring.enabled: false
            x: scene.textStart + row.start
            y: row.paragraph.before * row.scaled
            width: scene.textWidth - row.start - row.end
            Accessible.ignored: true
        }
    }
}

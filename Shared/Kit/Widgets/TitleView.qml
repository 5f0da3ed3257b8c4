// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The two-line title of pushed screens, 200 by 44 points; both lines shrink to fit.
Item {
    id: view

    property string title
    property string subtitle
    /// Shown in place of an empty title.
    property string fallback
    property LabelOutlet titleOutlet: null
    property LabelOutlet subtitleOutlet: null

    implicitWidth: 200
    implicitHeight: 44
    Accessible.role: Accessible.Heading
    Accessible.name: Sentence.joined([titleLabel.text, subtitleLabel.text])

    Label {
        id: titleLabel

        text: (view.titleOutlet !== null ? view.titleOutlet.text : view.title) || view.fallback
        y: 2
        width: parent.width
        line: 24 / scaleFactor
        scaleFactor: Theme.barScale
        color: Theme.titleInk
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
    Label {
        id: subtitleLabel

        text: view.subtitleOutlet !== null ? view.subtitleOutlet.text : view.subtitle
        y: 24
        width: parent.width
        size: Theme.noteSize
        line: 20 / scaleFactor
        scaleFactor: Theme.barScale
        color: Theme.titleInk
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        elide: Text.ElideMiddle
        Accessible.ignored: true
    }
}

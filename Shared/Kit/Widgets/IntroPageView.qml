// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Kit

/// One page of an intro: its whole picture on a night-coloured ground. Where the picture's own words would be too small
/// to read, or there is no picture, the page shows the picture's upper part and the words as text, one above or beside
/// the other.
Item {
    id: view

    required property introPage page
    /// Points at the lower edge that other items cover.
    property real footing: 64

    // Pictures are drawn for a screen of this size, at twice its resolution; the words begin below the art's height.
    readonly property size drawnFor: Qt.size(390, 844)
    readonly property int artHeight: 644
    readonly property real fit: Math.min(width / drawnFor.width, height / drawnFor.height)
    readonly property bool spelled: !page.hasBackground || fit < 0.7 * Theme.textScale
    readonly property bool sideBySide: width > height
    readonly property real room: height - footing - 24

    Image {
        anchors.fill: parent
        visible: !view.spelled
        source: view.spelled ? "" : view.page.background
        asynchronous: true
        fillMode: Image.PreserveAspectFit
        mipmap: true
        Accessible.ignored: true
    }
    Image {
        id: art

        visible: view.spelled && height > 80
        x: !view.sideBySide || !Theme.mirrored ? 0 : view.width - width
        y: 24
        width: view.sideBySide ? view.width / 2 : view.width
        height: view.sideBySide ? view.room : view.room - words.height
        source: view.spelled ? view.page.background : ""
        sourceClipRect: Qt.rect(0, 0, 2 * view.drawnFor.width, 2 * view.artHeight)
        asynchronous: true
        fillMode: Image.PreserveAspectFit
        mipmap: true
        Accessible.ignored: true
    }
    Flickable {
        id: words

        visible: view.spelled
        x: view.sideBySide && view.page.hasBackground && !Theme.mirrored ? view.width / 2 : 0
        y: view.sideBySide ? 24 + Math.max(0, (view.room - height) / 2) : 24 + view.room - height
        width: view.sideBySide && view.page.hasBackground ? view.width / 2 : view.width
        height: Math.min(contentHeight, view.room)
        contentHeight: column.height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Column {
            id: column

            x: 24
            width: words.width - 48
            spacing: 8
            bottomPadding: 8

            Label {
                text: view.page.heading
                width: parent.width
                size: Theme.rootTitleSize
                scaleFactor: Theme.barScale
                color: Theme.nightInk
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Label {
                text: view.page.words
                width: parent.width
                color: Theme.nightInk2
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }
}

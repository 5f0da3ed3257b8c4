// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// One place of a CardTable: a header or a row of a card. CardTable makes these itself; screens write a TableCell.
AccessibleItem {
    required property int index
    required property bool isHeader
    required property string headerTitle
    required property int section
    required property int row
    required property bool firstInSection
    required property bool lastInSection
    required property bool sectionHasHeader
    required property string headerDetail
    required property string headerNote
    required property string sectionFooter

    /// Points above the text of a header.
    property real headerSpace: 0
    property TableCell content: null
    property SwipeCell swipe: null
    readonly property bool selectable: content !== null && content.selectable
}

// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a SectionFoot.
Label {
    required property SectionFoot subject

    text: subject.text
    size: Theme.captionSize
    color: Theme.ink2
    topPadding: drop + 8
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}

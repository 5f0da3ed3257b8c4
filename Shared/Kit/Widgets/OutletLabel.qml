// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A label that shows its outlet's text and colour. `baseColor` applies while the outlet has no colour.
Label {
    id: label

    required property LabelOutlet outlet
    property color baseColor: Theme.ink

    text: outlet.text
    visible: !outlet.hidden
    color: outlet.color.valid ? Theme.inkFor(outlet.color) : baseColor
}

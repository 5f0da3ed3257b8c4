// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A label that shows its outlet's text and colour. `baseColor` applies while the outlet has no colour.
Label {
    required property LabelOutlet outlet

    text: outlet.text
    visible: !outlet.hidden
}

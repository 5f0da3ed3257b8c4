// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A label that shows its outlet's text.
Label {
    required property LabelOutlet outlet

    text: outlet.text
    visible: !outlet.hidden
}

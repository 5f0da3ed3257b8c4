// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The visible part of a FocusRing.
Rectangle {
    required property FocusRing subject

    color: "transparent"
    radius: subject.radius
    border.width: Theme.strong ? 3 : 2
    border.color: subject.color
}

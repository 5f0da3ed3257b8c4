// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// The header that a TableRow is.
SectionHeader {
    required property TableRow subject

    text: subject.headerTitle
    detail: subject.headerDetail
    note: subject.headerNote
    space: subject.headerSpace
    Accessible.ignored: true
}

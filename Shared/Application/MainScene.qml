// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

// What fills the window: whichever controller is its root.
RootView {
    id: scene

    required property FeedbackWindow window

    controller: window.rootViewController
}

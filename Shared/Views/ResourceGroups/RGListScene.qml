// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import Lodestar.Views

/// The resource groups of a console.
FeedListScene {
    delegate: RGListDelegate {}
}

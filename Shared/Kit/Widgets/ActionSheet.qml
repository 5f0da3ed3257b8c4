// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// Choices for one thing as rows: see ChoiceSheet.
ChoiceSheet {
    id: sheet

    choices: ChoiceRows {
        outlet: sheet.outlet
        hasIcons: sheet.hasIcons
    }
}

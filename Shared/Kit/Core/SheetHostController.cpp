// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/SheetHostController.h"

namespace lodestar
{

void SheetHostController::resizeModal(double keyboardHeight, Up up)
{
    resizeSemiView(restingSheetHeight() + (up == Up::Yes ? keyboardHeight : 0));
}

void SheetHostController::keyboardWillShow(double keyboardHeight)
{
    if (isInWindow()) {
        resizeModal(keyboardHeight, Up::Yes);
    }
}

void SheetHostController::keyboardWillHide()
{
    if (isInWindow()) {
        resizeModal(0, Up::No);
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

namespace lodestar
{

/// A screen whose semi-modal sheet is a form: while the keyboard is up the sheet stands on it. Its scene tells it of
/// the keyboard through SheetKeyboard. Main thread.
class SheetHostController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")

public:
    /// Where the keyboard stands when the sheet is to make room.
    enum class Up { No, Yes };

    /// Heights in points. Nothing without a sheet.
    void resizeModal(double keyboardHeight, Up up);
    /// Nothing while the screen is in no window.
    Q_INVOKABLE void keyboardWillShow(double keyboardHeight);
    Q_INVOKABLE void keyboardWillHide();

protected:
    /// Points of the sheet below its bar, with no keyboard. Asked anew each time.
    virtual double restingSheetHeight() const = 0;
};

} // namespace lodestar

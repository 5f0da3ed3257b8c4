// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

namespace lodestar
{

/// A screen whose semi-modal sheet is a form. While the keyboard is up, the sheet stands on top of it. The scene
/// reports the keyboard through SheetKeyboard. Main thread.
class SheetHostController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")

public:
    /// Whether the keyboard is up when the sheet is resized.
    enum class Up { No, Yes };

    /// Resizes the sheet; heights in points. Does nothing without a sheet.
    void resizeModal(double keyboardHeight, Up up);
    /// Does nothing while the screen is in no window.
    Q_INVOKABLE void keyboardWillShow(double keyboardHeight);
    Q_INVOKABLE void keyboardWillHide();

protected:
    /// The sheet's height below its bar, in points, without a keyboard. Called anew each time.
    virtual double restingSheetHeight() const = 0;
};

} // namespace lodestar

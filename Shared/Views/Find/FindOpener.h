// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

namespace lodestar
{

/// Opens Find for QML.
class FindOpener : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;
    /// On the stack that the screen stands on.
    Q_INVOKABLE static void openOver(lodestar::ViewController* screen);
    /// On the chosen tab of the main interface. Does nothing when another root is shown, as the passcode screen is, or
    /// while a sheet or the tour is up.
    Q_INVOKABLE static void openIn(lodestar::ViewController* root);
};

} // namespace lodestar

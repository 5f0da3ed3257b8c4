// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <QStringList>

namespace lodestar
{

/// A screen with a long text in pieces, which are selected and copied whole. Main thread.
class ReadingController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("base of the screens for reading")
    Q_PROPERTY(lodestar::MenuOutlet* copyMenu READ copyMenu CONSTANT)

public:
    MenuOutlet* copyMenu() { return &m_copyMenu; }
    /// Offers to copy the pieces from `first` to `last`, or the whole text.
    Q_INVOKABLE void presentCopyMenu(int first, int last);
    /// Copies the pieces as plain text. Pieces that do not exist are left out.
    Q_INVOKABLE void copy(int first, int last) const;

protected:
    virtual QStringList pieces() const = 0;

private:
    QString textOf(int first, int last) const;

    MenuOutlet m_copyMenu;
};

} // namespace lodestar

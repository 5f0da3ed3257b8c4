// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Views/Common/CellViews.h"

#include <QCoreApplication>
#include <QList>

#include <memory>

namespace lodestar
{

class Corvel;

/// One row of the console list, as a value. It shows either three spinners or three values with the arrow, never both;
/// name, version and address are shown in both cases.
struct CorvelListCell {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(lodestar::CorvelListCell)
    QML_VALUE_TYPE(corvelListCell)
    Q_PROPERTY(lodestar::CellLabel nameLabel MEMBER nameLabel)
    Q_PROPERTY(lodestar::CellLabel versionLabel MEMBER versionLabel)
    Q_PROPERTY(lodestar::CellLabel addressLabel MEMBER addressLabel)
    Q_PROPERTY(lodestar::CellLabel statusLabel MEMBER statusLabel)
    Q_PROPERTY(lodestar::CellLabel attentionLabel MEMBER attentionLabel)
    Q_PROPERTY(lodestar::CellLabel eventsLabel MEMBER eventsLabel)
    Q_PROPERTY(lodestar::CellImage selectionArrow MEMBER selectionArrow)
    Q_PROPERTY(lodestar::CellIndicator statusActivityIndicator MEMBER statusActivityIndicator)
    Q_PROPERTY(lodestar::CellIndicator attentionActivityIndicator MEMBER attentionActivityIndicator)
    Q_PROPERTY(lodestar::CellIndicator eventsActivityIndicator MEMBER eventsActivityIndicator)
    Q_PROPERTY(bool highlights MEMBER highlights)
    Q_PROPERTY(QList<lodestar::SwipeButton> rightButtons MEMBER rightButtons)
    Q_PROPERTY(QList<lodestar::SwipeButton> leftButtons MEMBER leftButtons)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    /// Makes a cell whose spinners run.
    CorvelListCell();

    /// Shows the spinners in place of values and arrow.
    void startAnimating() { setAnimating(true); }
    /// Shows values and arrow in place of the spinners.
    void stopAnimating() { setAnimating(false); }
    /// Shows the record as it is now. Main thread.
    void configure(const Corvel& corvel);
    /// The row's text for screen readers, as one sentence: name, state, counts.
    QString accessibleText() const;

    CellLabel nameLabel;
    CellLabel versionLabel;
    CellLabel addressLabel;
    CellLabel statusLabel;
    CellLabel attentionLabel;
    CellLabel eventsLabel;
    CellImage selectionArrow;
    CellIndicator statusActivityIndicator;
    CellIndicator attentionActivityIndicator;
    CellIndicator eventsActivityIndicator;
    bool highlights = false; ///< whether the row can be pressed and shows it; if not, the row always looks at rest
    QList<SwipeButton> rightButtons; ///< index 0 stands at the row's outer edge
    QList<SwipeButton> leftButtons;
    std::weak_ptr<Corvel> record; ///< whose mark the row shows beside what the cell says

private:
    void setAnimating(bool animating);
};

} // namespace lodestar

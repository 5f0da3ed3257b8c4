// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Views/Common/CellViews.h"

#include <QCoreApplication>
#include <QList>

namespace lodestar
{

class Corvel;

/// One row of the console list, as a value. It shows either three spinners or three values with the arrow, never both;
/// name, version and address are shown in both cases.
class CorvelListCell
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(lodestar::CorvelListCell)
    QML_VALUE_TYPE(corvelListCell)
    Q_PROPERTY(lodestar::CellLabel nameLabel READ nameLabel)
    Q_PROPERTY(lodestar::CellLabel versionLabel READ versionLabel)
    Q_PROPERTY(lodestar::CellLabel addressLabel READ addressLabel)
    Q_PROPERTY(lodestar::CellLabel statusLabel READ statusLabel)
    Q_PROPERTY(lodestar::CellLabel attentionLabel READ attentionLabel)
    Q_PROPERTY(lodestar::CellLabel eventsLabel READ eventsLabel)
    Q_PROPERTY(lodestar::CellImage selectionArrow READ selectionArrow)
    Q_PROPERTY(lodestar::CellIndicator statusActivityIndicator READ statusActivityIndicator)
    Q_PROPERTY(lodestar::CellIndicator attentionActivityIndicator READ attentionActivityIndicator)
    Q_PROPERTY(lodestar::CellIndicator eventsActivityIndicator READ eventsActivityIndicator)
    Q_PROPERTY(bool highlights READ highlights)
    Q_PROPERTY(QList<lodestar::SwipeButton> rightButtons READ rightButtons)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    /// Makes a cell whose spinners run.
    CorvelListCell();

    /// Shows the spinners in place of values and arrow.
    void startAnimating();
    /// Shows values and arrow in place of the spinners.
    void stopAnimating();
    /// Shows the record as it is now. Main thread.
    void configure(const Corvel& corvel);
    void setRightButtons(QList<SwipeButton> buttons) { m_rightButtons = std::move(buttons); }

    const CellLabel& nameLabel() const { return m_nameLabel; }
    const CellLabel& versionLabel() const { return m_versionLabel; }
    const CellLabel& addressLabel() const { return m_addressLabel; }
    const CellLabel& statusLabel() const { return m_statusLabel; }
    const CellLabel& attentionLabel() const { return m_attentionLabel; }
    const CellLabel& eventsLabel() const { return m_eventsLabel; }
    const CellImage& selectionArrow() const { return m_selectionArrow; }
    const CellIndicator& statusActivityIndicator() const { return m_statusActivityIndicator; }
    const CellIndicator& attentionActivityIndicator() const { return m_attentionActivityIndicator; }
    const CellIndicator& eventsActivityIndicator() const { return m_eventsActivityIndicator; }
    /// Whether the row can be pressed and shows it; if not, the row always looks at rest.
    bool highlights() const { return m_highlights; }
    /// Index 0 stands at the row's outer edge.
    const QList<SwipeButton>& rightButtons() const { return m_rightButtons; }
    /// The row's text for screen readers, as one sentence: name, state, counts.
    QString accessibleText() const;

private:
    CellLabel m_nameLabel;
    CellLabel m_versionLabel;
    CellLabel m_addressLabel;
    CellLabel m_statusLabel;
    CellLabel m_attentionLabel;
    CellLabel m_eventsLabel;
    CellImage m_selectionArrow;
    CellIndicator m_statusActivityIndicator;
    CellIndicator m_attentionActivityIndicator;
    CellIndicator m_eventsActivityIndicator;
    bool m_highlights = false;
    QList<SwipeButton> m_rightButtons;
};

} // namespace lodestar

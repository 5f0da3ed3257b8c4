// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Views/Common/CellViews.h"

#include <QCoreApplication>
#include <QList>

namespace lodestar
{

class ManagedSystem;

/// One row of the managed-system list, as a value: name and state. A system in error or with its attention LED lit has
/// a badge, for which the name moves aside.
class MSListCell
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(lodestar::MSListCell)
    QML_VALUE_TYPE(msListCell)
    Q_PROPERTY(lodestar::CellImage statusImage READ statusImage)
    Q_PROPERTY(lodestar::CellLabel nameLabel READ nameLabel)
    Q_PROPERTY(lodestar::CellLabel statusLabel READ statusLabel)
    Q_PROPERTY(double nameLeftConstraint READ nameLeftConstraint)
    Q_PROPERTY(QList<lodestar::SwipeButton> rightButtons READ rightButtons)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    MSListCell() = default;
    /// `match` is the searched text; empty for none.
    MSListCell(const ManagedSystem& system, const QString& match);

    const CellImage& statusImage() const { return m_statusImage; }
    const CellLabel& nameLabel() const { return m_nameLabel; }
    const CellLabel& statusLabel() const { return m_statusLabel; }
    /// Points from the row's start to the name.
    double nameLeftConstraint() const { return m_nameLeftConstraint; }
    void setRightButtons(QList<SwipeButton> buttons) { m_rightButtons = std::move(buttons); }
    const QList<SwipeButton>& rightButtons() const { return m_rightButtons; }
    QString accessibleText() const;

private:
    CellImage m_statusImage{{}, true};
    CellLabel m_nameLabel;
    CellLabel m_statusLabel;
    double m_nameLeftConstraint = 20;
    bool m_isError = false;
    bool m_isLEDLit = false;
    QList<SwipeButton> m_rightButtons;
};

} // namespace lodestar

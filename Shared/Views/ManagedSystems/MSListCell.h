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
struct MSListCell {
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(lodestar::MSListCell)
    QML_VALUE_TYPE(msListCell)
    Q_PROPERTY(lodestar::CellImage statusImage MEMBER statusImage)
    Q_PROPERTY(lodestar::CellLabel nameLabel MEMBER nameLabel)
    Q_PROPERTY(lodestar::CellLabel statusLabel MEMBER statusLabel)
    Q_PROPERTY(double nameLeftConstraint MEMBER nameLeftConstraint)
    Q_PROPERTY(QList<lodestar::SwipeButton> rightButtons MEMBER rightButtons)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText)

public:
    MSListCell() = default;
    /// `match` is the searched text; empty for none.
    MSListCell(const ManagedSystem& system, const QString& match);

    CellImage statusImage{{}, true};
    CellLabel nameLabel;
    CellLabel statusLabel;
    double nameLeftConstraint = 20; ///< points from the row's start to the name
    QList<SwipeButton> rightButtons;
    QString accessibleText;
};

} // namespace lodestar

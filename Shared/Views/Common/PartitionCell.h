// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Views/Common/CellViews.h"

#include <QList>

namespace lodestar
{

class Partition;

/// One row of a list grouped by managed system, as a value: a partition's name and state, and the subclass's additions.
struct PartitionCell {
    Q_GADGET
    QML_VALUE_TYPE(partitionCell)
    Q_PROPERTY(lodestar::CellLabel nameLabel MEMBER nameLabel)
    Q_PROPERTY(lodestar::CellLabel typeLabel MEMBER typeLabel)
    Q_PROPERTY(lodestar::CellLabel stateLabel MEMBER stateLabel)
    Q_PROPERTY(lodestar::CellLabel referenceCodeLabel MEMBER referenceCodeLabel)
    Q_PROPERTY(QList<lodestar::SwipeButton> leftButtons MEMBER leftButtons)
    Q_PROPERTY(int leftExpansion MEMBER leftExpansion)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    PartitionCell() = default;
    /// `match` is the searched text; empty for none.
    PartitionCell(const Partition& partition, const QString& match);

    /// The row's text for screen readers, as one sentence.
    QString accessibleText() const;

    CellLabel nameLabel;
    CellLabel typeLabel;
    CellLabel stateLabel;
    CellLabel referenceCodeLabel;
    QList<SwipeButton> leftButtons; ///< index 0 stands at the row's outer edge
    int leftExpansion = -1;         ///< the button that fills the row after a far swipe; -1 for none
};

} // namespace lodestar

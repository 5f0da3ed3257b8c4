// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Views/Common/CellViews.h"

#include <QList>

namespace lodestar
{

class Partition;

/// One row of a list grouped by managed system, as a value: a partition's name and state, and the subclass's additions.
class PartitionCell
{
    Q_GADGET
    QML_VALUE_TYPE(partitionCell)
    Q_PROPERTY(lodestar::CellLabel nameLabel READ nameLabel)
    Q_PROPERTY(lodestar::CellLabel typeLabel READ typeLabel)
    Q_PROPERTY(lodestar::CellLabel stateLabel READ stateLabel)
    Q_PROPERTY(lodestar::CellLabel referenceCodeLabel READ referenceCodeLabel)
    Q_PROPERTY(QList<lodestar::SwipeButton> leftButtons READ leftButtons)
    Q_PROPERTY(int leftExpansion READ leftExpansion)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    PartitionCell() = default;
    /// `match` is the searched text; empty for none.
    PartitionCell(const Partition& partition, const QString& match);

    const CellLabel& nameLabel() const { return m_nameLabel; }
    const CellLabel& typeLabel() const { return m_typeLabel; }
    const CellLabel& stateLabel() const { return m_stateLabel; }
    const CellLabel& referenceCodeLabel() const { return m_referenceCodeLabel; }
    /// Index 0 stands at the row's outer edge.
    const QList<SwipeButton>& leftButtons() const { return m_leftButtons; }
    /// The button that fills the row after a far swipe; -1 for none.
    int leftExpansion() const { return m_leftExpansion; }
    /// The row's text for screen readers, as one sentence.
    QString accessibleText() const;

    void setType(const QString& type) { m_typeLabel.text = type; }
    void setReferenceCode(const QString& code) { m_referenceCodeLabel.text = code; }
    void setLeftButtons(QList<SwipeButton> buttons, int expansion)
    {
        m_leftButtons = std::move(buttons);
        m_leftExpansion = expansion;
    }

private:
    CellLabel m_nameLabel;
    CellLabel m_typeLabel;
    CellLabel m_stateLabel;
    CellLabel m_referenceCodeLabel;
    QList<SwipeButton> m_leftButtons;
    int m_leftExpansion = -1;
};

} // namespace lodestar

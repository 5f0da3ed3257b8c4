// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/PartitionCell.h"

#include "Inventory/Partition.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Views/Common/CellText.h"

namespace lodestar
{
namespace
{

struct StateLook {
    QColor color;
    const char* mark;
};

StateLook lookOf(Health health)
{
    switch (health) {
    case Health::Good:
        return {UIColor::successGreen(), "good"};
    case Health::Idle:
        return {UIColor::failedRed(), "off"};
    case Health::Error:
        return {UIColor::errorRed(), "error"};
    default:
        return {UIColor::orangeColor(), "alert"};
    }
}

} // namespace

PartitionCell::PartitionCell(const Partition& partition, const QString& match)
{
    m_nameLabel.text = textOf(partition.name());
    m_nameLabel.match = match;
    m_stateLabel.text = textOf(partition.state());
    const StateLook look = lookOf(partition.health());
    m_stateLabel.color = look.color;
    m_stateMark = QString::fromLatin1(look.mark);
}

QString PartitionCell::accessibleText() const
{
    return spoken({m_nameLabel.text, m_typeLabel.text, m_stateLabel.text, m_referenceCodeLabel.text});
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/PartitionCell.h"

#include "Inventory/Partition.h"
#include "Views/Common/CellText.h"

namespace lodestar
{
namespace
{

Role::State roleOf(Health health)
{
    switch (health) {
    case Health::Good:
        return Role::State::Good;
    case Health::Idle:
        return Role::State::Off;
    case Health::Error:
        return Role::State::Error;
    default:
        return Role::State::Alert;
    }
}

} // namespace

PartitionCell::PartitionCell(const Partition& partition, const QString& match)
{
    m_nameLabel.text = textOf(partition.name());
    m_nameLabel.match = match;
    m_stateLabel.text = textOf(partition.state());
    m_stateLabel.state = roleOf(partition.health());
}

QString PartitionCell::accessibleText() const
{
    return spoken({m_nameLabel.text, m_typeLabel.text, m_stateLabel.text, m_referenceCodeLabel.text});
}

} // namespace lodestar

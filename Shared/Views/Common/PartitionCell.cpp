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
    nameLabel.text = textOf(partition.name());
    nameLabel.match = match;
    stateLabel.text = textOf(partition.state());
    stateLabel.state = roleOf(partition.health());
}

QString PartitionCell::accessibleText() const
{
    return spoken({nameLabel.text, typeLabel.text, stateLabel.text, referenceCodeLabel.text});
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Partition.h"

namespace lodestar
{

std::string Partition::systemNameLink() const
{
    return shownText(element().child("AssociatedManagedSystem").attribute("href")) + "/quick/SystemName";
}

Health Partition::health() const
{
    const auto words = state();
    if (words == "running") {
        return Health::Good;
    }
    if (words == "not activated") {
        return Health::Idle;
    }
    return words == "error" ? Health::Error : Health::Alert;
}

} // namespace lodestar

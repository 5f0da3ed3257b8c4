// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Partition.h"

namespace lodestar
{

std::string Partition::systemNameLink() const
{
    return shownText(element().child("AssociatedManagedSystem").attribute("href")) + "/quick/SystemName";
}

Health Partition::healthOfState(std::string_view state)
{
    if (state == "running") {
        return Health::Good;
    }
    if (state == "not activated") {
        return Health::Idle;
    }
    return state == "error" ? Health::Error : Health::Alert;
}

} // namespace lodestar

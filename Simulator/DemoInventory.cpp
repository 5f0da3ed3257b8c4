// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Inventory.h"

namespace lodestar::simulator
{

Inventory makeDemoInventory()
{
    return makeInventory(Settings(), 0);
}

} // namespace lodestar::simulator

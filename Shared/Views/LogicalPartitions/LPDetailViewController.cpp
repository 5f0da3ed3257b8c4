// SPDX-License-Identifier: Apache-2.0
#include "Views/LogicalPartitions/LPDetailViewController.h"

namespace lodestar
{

LPDetailViewController::LPDetailViewController()
    : PartitionDetailViewController("Shared/Views/LogicalPartitions/LPDetailViewController", tr("Partition Details"))
{
}

} // namespace lodestar

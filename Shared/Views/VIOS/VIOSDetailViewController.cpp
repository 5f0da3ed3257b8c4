// SPDX-License-Identifier: Apache-2.0
#include "Views/VIOS/VIOSDetailViewController.h"

namespace lodestar
{

VIOSDetailViewController::VIOSDetailViewController()
    : PartitionDetailViewController("Shared/Views/VIOS/VIOSDetailViewController", tr("VIOS Details"))
{
}

void VIOSDetailViewController::populatePartitionDetails()
{
    log().write(47, "populatePartitionDetails", "VIOSDetailViewController: Fetching main items");
    PartitionDetailViewController::populatePartitionDetails();
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/PartitionDetailViewController.h"

namespace lodestar
{

/// The facts of one logical partition.
class LPDetailViewController : public lodestar::PartitionDetailViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    LPDetailViewController()
        : PartitionDetailViewController("Shared/Views/LogicalPartitions/LPDetailViewController",
                                        tr("Partition Details"))
    {
    }
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/PartitionDetailViewController.h"

namespace lodestar
{

/// The facts of one virtual I/O server.
class VIOSDetailViewController : public lodestar::PartitionDetailViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    VIOSDetailViewController()
        : PartitionDetailViewController("Shared/Views/VIOS/VIOSDetailViewController", tr("VIOS Details"))
    {
    }

    /// Does the same as for a partition and writes one more log line.
    void populatePartitionDetails() override
    {
        log().write(47, "populatePartitionDetails", "VIOSDetailViewController: Fetching main items");
        PartitionDetailViewController::populatePartitionDetails();
    }
};

} // namespace lodestar

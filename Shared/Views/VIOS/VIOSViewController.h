// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/GroupedListViewController.h"

namespace lodestar
{

/// The virtual I/O servers of a console by managed system. Swiping a row uncovers buttons that do nothing; that is
/// meant, because nothing is ever changed on a console.
class VIOSViewController : public lodestar::GroupedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    VIOSViewController();

    /// The second text of a list that could not be loaded. Showing content need not hide it, because loading comes
    /// first and hides it.
    LabelOutlet* ohCrabLabel() { return noDataHeadline(); }

protected:
    void completeCell(PartitionCell& cell, const Partition& partition) const override;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/GroupedListViewController.h"

namespace lodestar
{

/// The virtual I/O servers of a console by managed system. Their rows swipe and uncover buttons that do nothing: that
/// is meant, since nothing is ever changed on a console.
class VIOSViewController : public lodestar::GroupedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    VIOSViewController();

    /// The second text of a list that could not be loaded. Content leaves it as it is: loading, which comes first, has
    /// hidden it.
    LabelOutlet* ohCrabLabel() { return noDataHeadline(); }

protected:
    void completeCell(PartitionCell& cell, const Partition& partition) const override;
};

} // namespace lodestar

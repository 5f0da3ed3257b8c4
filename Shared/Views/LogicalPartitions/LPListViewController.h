// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/GroupedListViewController.h"

namespace lodestar
{

/// The logical partitions of a console by managed system: of all systems, or narrowed to one. A demonstration console
/// has no system names and always shows all.
///
/// A narrowed list has one section with as many rows as the system has partitions, and titled with its name. Its rows
/// are the first group's all the same, whichever system that is: the narrowing does not reach them, and that is meant.
class LPListViewController : public lodestar::GroupedListViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")

public:
    LPListViewController();

    /// Despite its name, the name of a managed system; nothing for all systems.
    const std::optional<std::string>& partitionName() const { return m_partitionName; }
    void setPartitionName(std::optional<std::string> partitionName) { m_partitionName = std::move(partitionName); }

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;

protected:
    void viewDidLoad() override;
    void completeCell(PartitionCell& cell, const Partition& partition) const override;
    XMLElement partitionAt(TableKind tableView, IndexPath indexPath) const override;

private:
    std::optional<std::string> m_partitionName;
};

} // namespace lodestar

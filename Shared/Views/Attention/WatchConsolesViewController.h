// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"
#include "Platform/NotificationCenter.h"

#include <vector>

namespace lodestar
{

/// A console that may be watched, as a row.
struct WatchConsoleCell {
    Q_GADGET
    QML_VALUE_TYPE(watchConsoleCell)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(bool watched MEMBER watched)

public:
    QString name;
    bool watched = false;
    friend bool operator==(const WatchConsoleCell&, const WatchConsoleCell&) = default;
};

/// Which consoles are watched; a press turns one on or off. Main thread.
class WatchConsolesViewController : public lodestar::ViewController, public TableDataSource
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)

public:
    WatchConsolesViewController();

    TableOutlet* tableView() { return &m_tableView; }
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

protected:
    void viewDidLoad() override;

private:
    TableOutlet m_tableView;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace lodestar

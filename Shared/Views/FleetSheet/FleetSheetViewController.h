// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/ViewController.h"
#include "Platform/NotificationCenter.h"

namespace lodestar
{

/// The entry to fleet sheets: consoles from a sheet, and consoles to one. Main thread.
class FleetSheetViewController : public lodestar::ViewController, public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::LabelOutlet* exportLabel READ exportLabel CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* demoRow READ demoRow CONSTANT)

public:
    FleetSheetViewController();

    /// Disabled while there is nothing to export.
    LabelOutlet* exportLabel() { return &m_exportLabel; }
    /// Hidden while the list has the demonstration console.
    ViewOutlet* demoRow() { return &m_demoRow; }

    /// Asks for a file and opens it.
    Q_INVOKABLE void importSheet();
    /// Opens a file that was dropped here.
    Q_INVOKABLE void importFile(const QUrl& url);
    Q_INVOKABLE void exportSheet();
    /// Adds the demonstration console to the list, and leads there.
    Q_INVOKABLE void lookAtDemo();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    void show();

    LabelOutlet m_exportLabel;
    ViewOutlet m_demoRow;
    NotificationCenter::Observation m_observation;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Watch.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"
#include "Platform/NotificationCenter.h"

#include <functional>
#include <vector>

namespace lodestar
{

/// The settings of the watch. Each change counts at once. Main thread.
class WatchViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::SwitchOutlet* watchSwitch READ watchSwitch CONSTANT)
    Q_PROPERTY(lodestar::SwitchOutlet* worseSwitch READ worseSwitch CONSTANT)
    Q_PROPERTY(lodestar::SwitchOutlet* betterSwitch READ betterSwitch CONSTANT)
    Q_PROPERTY(lodestar::SwitchOutlet* quietSwitch READ quietSwitch CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* everyLabel READ everyLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* newEventsLabel READ newEventsLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* consolesLabel READ consolesLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* fromLabel READ fromLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* untilLabel READ untilLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* quietNote READ quietNote CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* leftOutNote READ leftOutNote CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* serviceNote READ serviceNote CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* testRow READ testRow CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* menu READ menu CONSTANT)

public:
    SwitchOutlet* watchSwitch() { return &m_watchSwitch; }
    SwitchOutlet* worseSwitch() { return &m_worseSwitch; }
    SwitchOutlet* betterSwitch() { return &m_betterSwitch; }
    SwitchOutlet* quietSwitch() { return &m_quietSwitch; }
    LabelOutlet* everyLabel() { return &m_everyLabel; }
    LabelOutlet* newEventsLabel() { return &m_newEventsLabel; }
    LabelOutlet* consolesLabel() { return &m_consolesLabel; }
    LabelOutlet* fromLabel() { return &m_fromLabel; }
    LabelOutlet* untilLabel() { return &m_untilLabel; }
    LabelOutlet* quietNote() { return &m_quietNote; }
    /// Hidden while no console is left out.
    LabelOutlet* leftOutNote() { return &m_leftOutNote; }
    /// Hidden while the system shows messages.
    LabelOutlet* serviceNote() { return &m_serviceNote; }
    /// Disabled while the system shows no messages.
    ViewOutlet* testRow() { return &m_testRow; }
    /// The choices of an interval and of events.
    MenuOutlet* menu() { return &m_menu; }

    /// Called when the person flips a switch.
    Q_INVOKABLE void takeSwitches();
    Q_INVOKABLE void chooseInterval();
    Q_INVOKABLE void chooseNewEvents();
    Q_INVOKABLE void openConsoles();
    /// Moves a time of the quiet hours on or back by a number of quarters of an hour.
    Q_INVOKABLE void moveFrom(int quarters);
    Q_INVOKABLE void moveUntil(int quarters);
    Q_INVOKABLE void sendTestMessage();

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;

private:
    void show();
    static void change(const std::function<void(WatchSettings&)>& edit);

    SwitchOutlet m_watchSwitch;
    SwitchOutlet m_worseSwitch;
    SwitchOutlet m_betterSwitch;
    SwitchOutlet m_quietSwitch;
    LabelOutlet m_everyLabel;
    LabelOutlet m_newEventsLabel;
    LabelOutlet m_consolesLabel;
    LabelOutlet m_fromLabel;
    LabelOutlet m_untilLabel;
    LabelOutlet m_quietNote;
    LabelOutlet m_leftOutNote;
    LabelOutlet m_serviceNote;
    ViewOutlet m_testRow;
    MenuOutlet m_menu;
    NotificationCenter::Observation m_observation;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetEvents.h"
#include "Fleet/History.h"
#include "Inventory/StateCounts.h"
#include "Views/Common/DayBarsOutlet.h"

#include <QColor>
#include <QList>

#include <memory>
#include <vector>

namespace lodestar
{

/// A state of partitions with its bar, as a value.
struct StateBar {
    Q_GADGET
    QML_VALUE_TYPE(stateBar)
    Q_PROPERTY(QString state MEMBER state)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(double share MEMBER share)
    Q_PROPERTY(QString count MEMBER count)
    Q_PROPERTY(QString change MEMBER change)
    Q_PROPERTY(QString accessibleText READ accessibleText)

public:
    QString state;    ///< the console's word
    QColor color;     ///< the one that the pie gave the state
    double share = 0; ///< of the longest bar
    QString count;
    QString change; ///< "+1" since this time yesterday; empty for none

    QString accessibleText() const;
    friend bool operator==(const StateBar&, const StateBar&) = default;
};

/// What stands below the dashboard's pies: new events a day, and the partitions' states with what changed since
/// yesterday. Main thread; what takes long is done elsewhere.
class DashboardBars : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the dashboard")
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    Q_PROPERTY(lodestar::DayBarsOutlet* events READ events CONSTANT)
    Q_PROPERTY(QList<lodestar::StateBar> states READ states NOTIFY statesChanged)

public:
    bool isShown() const { return m_shown; }
    void setShown(bool shown);
    DayBarsOutlet* events() { return &m_events; }
    const QList<StateBar>& states() const { return m_states; }

    /// Shows what the consoles' records hold now. `colors` are the pie's, by the states' position.
    void show(const StateCounts& partitions, const QList<QColor>& colors);

Q_SIGNALS:
    void shownChanged();
    void statesChanged();

private:
    void showEvents();
    void compareWithYesterday();

    bool m_shown = false;
    int m_turn = 0; ///< of the last `show`, the only one whose later parts are shown
    DayBarsOutlet m_events;
    QList<StateBar> m_states;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Readings.h"
#include "Views/Common/ReadingMark.h"
#include "Views/Common/ReadingWatch.h"

#include <QObject>

namespace lodestar
{

/// How complete the dashboard's figures are, and when they were read. Taken when the figures are, since later readings
/// do not change those; only what follows the clock is written anew while the dashboard is seen. Main thread.
class DashboardMarks : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of a controller")
    Q_PROPERTY(lodestar::ReadingMark answered READ answered NOTIFY changed)
    Q_PROPERTY(lodestar::ReadingMark systems READ systems NOTIFY changed)
    Q_PROPERTY(lodestar::ReadingMark partitions READ partitions NOTIFY changed)
    Q_PROPERTY(QString foot READ foot NOTIFY changed)
    Q_PROPERTY(bool old READ isOld NOTIFY changed)

public:
    /// "4 of 6 answered in full".
    const ReadingMark& answered() const { return m_answered; }
    /// "missing from 1 of 6". Consoles that are offline are said once, by `answered`.
    const ReadingMark& systems() const { return m_systems; }
    const ReadingMark& partitions() const { return m_partitions; }
    /// "Read 09:41 to 09:43. Next in 13 min.". Empty before anything was read.
    const QString& foot() const { return m_foot; }
    bool isOld() const { return m_old; }

    /// Takes what the working list's records hold now.
    void take();
    void begin();
    void end() { m_watch.end(); }

Q_SIGNALS:
    void changed();

private:
    void followClock();

    FleetReading m_fleet;
    ReadingMark m_answered;
    ReadingMark m_systems;
    ReadingMark m_partitions;
    QString m_foot;
    bool m_old = false;
    ReadingWatch m_watch;
};

} // namespace lodestar

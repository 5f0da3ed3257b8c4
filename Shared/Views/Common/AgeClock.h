// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"

#include <QBasicTimer>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QJSEngine;
class QQmlEngine;

namespace lodestar
{

/// Says every 30 seconds that ages should be written anew, as long as somebody listens. A screen listens while it is
/// seen. One for the process. Main thread.
class AgeClock : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static AgeClock& shared();
    static AgeClock* create(QQmlEngine* qml, QJSEngine* js);

    /// What ages are counted from: the device's clock, unless a test or a picture has set another moment.
    static WallTime now();
    /// Sets the moment and ticks; nothing returns to the device's clock.
    static void setNow(std::optional<WallTime> now);

Q_SIGNALS:
    void ticked();

protected:
    void connectNotify(const QMetaMethod& signal) override;
    void timerEvent(QTimerEvent* event) override;

private:
    AgeClock() = default;

    QBasicTimer m_timer;
    std::optional<WallTime> m_now;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/AgeClock.h"

#include <QMetaMethod>
#include <QQmlEngine>
#include <QTimerEvent>

#include <chrono>

namespace lodestar
{
namespace
{

constexpr std::chrono::seconds interval{30};

} // namespace

AgeClock& AgeClock::shared()
{
    // Never deleted: screens that outlive the application object still disconnect from it.
    static auto* const clock = new AgeClock;
    return *clock;
}

AgeClock* AgeClock::create(QQmlEngine* /*qml*/, QJSEngine* /*js*/)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

WallTime AgeClock::now()
{
    return shared().m_now.value_or(std::chrono::system_clock::now());
}

void AgeClock::setNow(std::optional<WallTime> now)
{
    shared().m_now = now;
    Q_EMIT shared().ticked();
}

void AgeClock::connectNotify(const QMetaMethod& signal)
{
    if (signal == QMetaMethod::fromSignal(&AgeClock::ticked) && !m_timer.isActive()) {
        m_timer.start(static_cast<int>(std::chrono::milliseconds(interval).count()), Qt::VeryCoarseTimer, this);
    }
}

void AgeClock::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        return;
    }
    // Asked here and not when somebody disconnects: Qt holds a lock then that this question takes, too.
    if (isSignalConnected(QMetaMethod::fromSignal(&AgeClock::ticked))) {
        Q_EMIT ticked();
    } else {
        m_timer.stop();
    }
}

} // namespace lodestar

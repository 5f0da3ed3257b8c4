// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Tips.h"

#include <QJSEngine>
#include <QTimerEvent>

#include <utility>

namespace lodestar
{
namespace
{

constexpr int restsFor = 600; ///< milliseconds

} // namespace

Tips& Tips::shared()
{
    // Never deleted: nothing orders the end of the process's scenes and this.
    static auto* const tips = new Tips;
    return *tips;
}

Tips* Tips::create(QQmlEngine* /*qml*/, QJSEngine* /*js*/)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void Tips::enter(QQuickItem* button, const QString& text)
{
    m_waiting = button;
    m_waitingText = text;
    m_timer.start(restsFor, this);
}

void Tips::leave(QQuickItem* button)
{
    if (m_waiting == button) {
        m_waiting = nullptr;
        m_timer.stop();
    }
    if (m_button == button && std::exchange(m_presented, false)) {
        Q_EMIT changed();
    }
}

void Tips::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        return;
    }
    m_timer.stop();
    if (m_waiting) {
        m_button = std::exchange(m_waiting, nullptr);
        m_text = m_waitingText;
        m_presented = true;
        Q_EMIT changed();
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/LastPress.h"

#include <QGuiApplication>
#include <QMouseEvent>

namespace lodestar
{
namespace
{

constexpr qint64 recentMilliseconds = 1500;

} // namespace

LastPress::LastPress(QObject* parent) : QObject(parent)
{
    QGuiApplication::instance()->installEventFilter(this);
}

bool LastPress::isRecent() const
{
    return m_since.isValid() && !m_since.hasExpired(recentMilliseconds);
}

bool LastPress::eventFilter(QObject* watched, QEvent* event)
{
    // Only events of windows count: a window passes the same press on to its items.
    if (watched->isWindowType()) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            m_position = static_cast<QPointerEvent*>(event)->point(0).scenePosition();
            m_since.start();
            break;
        case QEvent::KeyPress:
            m_since.invalidate();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace lodestar

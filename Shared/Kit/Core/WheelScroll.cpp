// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/WheelScroll.h"

#include "Kit/Core/Appearance.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lodestar
{
namespace
{

constexpr double oneTurn = 120;   ///< the wheel's angle from one notch to the next
constexpr double lineHeight = 24; ///< points of what the system counts as a line

double number(const QQuickItem& item, const char* property)
{
    return item.property(property).toDouble();
}

bool tellsPoints(const QWheelEvent& event)
{
    return !event.pixelDelta().isNull() && event.phase() != Qt::NoScrollPhase &&
           event.device()->type() == QInputDevice::DeviceType::TouchPad;
}

bool scrollsDown(const QQuickItem& flickable)
{
    // A list that lies on its side turns its pages by the wheel.
    const QVariant orientation = flickable.property("orientation");
    return flickable.property("interactive").toBool() &&
           (!orientation.isValid() || orientation.toInt() == Qt::Vertical);
}

} // namespace

void WheelScroll::install()
{
    static QPointer<WheelScroll> installed;
    if (!installed && QCoreApplication::instance() != nullptr) {
        installed = new WheelScroll(QCoreApplication::instance());
        QCoreApplication::instance()->installEventFilter(installed);
    }
}

bool WheelScroll::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || !watched->inherits("QQuickFlickable")) {
        return false;
    }
    return scroll(*static_cast<QQuickItem*>(watched), *static_cast<QWheelEvent*>(event));
}

bool WheelScroll::scroll(QQuickItem& flickable, QWheelEvent& event)
{
    const QPoint angle = event.angleDelta();
    if (tellsPoints(event) || !scrollsDown(flickable) || angle.y() == 0 || std::abs(angle.x()) > std::abs(angle.y())) {
        return false;
    }
    const double now = number(flickable, "contentY");
    const bool underWay = m_scrolled == &flickable && flickable.property("flickingVertically").toBool();
    const double from = number(flickable, "originY") - number(flickable, "topMargin");
    const double to = number(flickable, "originY") + number(flickable, "contentHeight") +
                      number(flickable, "bottomMargin") - flickable.height();
    const double turn = angle.y() / oneTurn * QGuiApplication::styleHints()->wheelScrollLines() * lineHeight;
    const double target = std::clamp((underWay ? m_target : now) - turn, from, std::max(from, to));
    const bool goes = std::abs(target - now) >= 0.5;
    event.setAccepted(goes);
    if (!goes) {
        return true;
    }
    m_scrolled = &flickable;
    m_target = target;
    if (Appearance::shared().isReducedMotion()) {
        flickable.setProperty("contentY", target);
        return true;
    }
    // A flick of just this speed comes to rest at the target.
    const double speed = std::sqrt(2 * number(flickable, "flickDeceleration") * std::abs(target - now));
    QMetaObject::invokeMethod(&flickable, "flick", Q_ARG(double, 0), Q_ARG(double, target > now ? -speed : speed));
    return true;
}

} // namespace lodestar

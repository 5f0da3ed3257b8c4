// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>

class QQuickItem;
class QWheelEvent;

namespace lodestar
{

/// Lets the wheel scroll as far as the system says, in all flickables of the process. Qt 6.4's own flickables take the
/// first turn for a flick of some hundred points and the next one for a faster flick, whatever the system says.
/// Touchpads that tell points are left to the flickable, which follows them. At its end a flickable leaves the wheel to
/// the one around it. Main thread.
class WheelScroll : public QObject
{
    Q_OBJECT

public:
    /// Once for the process; later calls do nothing.
    static void install();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
    /// Returns whether the event is dealt with; if so, it is accepted when the flickable can still go there.
    bool scroll(QQuickItem& flickable, QWheelEvent& event);

    QPointer<QQuickItem> m_scrolled; ///< the flickable that the wheel moved last
    double m_target = 0;             ///< where that will come to rest
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>

class QWindow;

namespace lodestar
{

/// Shows the window above the others, also when it is minimised or hidden, and asks for the keyboard focus.
void bringToFront(QWindow& window);

/// Gives a window the size and place that it last had on the screens that are there now, or on any when these are new,
/// as far as they allow, and remembers later changes in `KeptState`. Of a maximised window it keeps the place to which
/// the window returns; where windows do not know their place, as on Wayland, only the size. Main thread.
class WindowPlace : public QObject
{
public:
    /// Make it before the window is shown. The window must outlive this object, and keeps its own size and place when
    /// none are remembered.
    explicit WindowPlace(QWindow& window);
    /// Remembers the last change, if the timer has not done so.
    ~WindowPlace() override;

private:
    void restore();
    void settle();
    void remember();

    QWindow& m_window;
    QTimer m_settled;
    QRect m_resting; ///< the place when not maximised
    bool m_screensChanged = false;
};

} // namespace lodestar

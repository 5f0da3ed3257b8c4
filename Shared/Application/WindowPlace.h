// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QTimer>

class QWindow;

namespace lodestar
{

/// Shows the window above the others, also when it is minimised or hidden, and asks for the keyboard focus.
void bringToFront(QWindow& window);

/// Gives a window the size and place that it had when the application last ran, as far as today's screens allow, and
/// remembers later changes in `KeptState`. Of a maximised window it keeps the place to which the window returns. Main
/// thread.
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
    void remember();

    QWindow& m_window;
    QTimer m_settled;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QTimer>

class QWindow;

namespace lodestar
{

/// Gives a window the size and place that it had when the application last ran, as far as they fit the screens of
/// today, and remembers them from then on in `KeptState`. While the window is maximised the place that it goes back to
/// is kept. Main thread.
class WindowPlace : public QObject
{
public:
    /// Before the window is shown; it keeps its own size and place where none are known. The window outlives this.
    explicit WindowPlace(QWindow& window);
    /// Remembers what has changed last.
    ~WindowPlace() override;

private:
    void restore();
    void remember();

    QWindow& m_window;
    QTimer m_settled;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <Qt>

#include <functional>
#include <vector>

class QQuickView;
class QScreen;

namespace lodestar
{

/// Tells when the application becomes active, and covers a window that is not to be seen meanwhile, while a passcode is
/// required: what the system keeps as the application's picture shows nothing of the interface, nor does a reader, and
/// neither does the first frame of a window that comes back. The cover stays until the application becomes active. It
/// locks nothing; that happens then. Main thread.
///
/// On a desk a window that others have the keyboard of is still in sight, for the one who left it there: it stays as
/// it is. What is minimised, hidden or on another workspace is covered. On a phone the screen is the application's
/// alone: who takes the keyboard takes the screen, and the system's picture is made then.
class PrivacyCover : public QObject
{
public:
    enum class Device { Phone, Desk };
    static Device deviceOf(const QScreen& screen);

    /// The window outlives this. The function locks the interface if a passcode is required.
    PrivacyCover(QQuickView& window, Device device, std::function<void()> becomeActive);

    void applicationStateDidChange(Qt::ApplicationState state);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void windowDidChange();
    void becomeActive();
    void cover();
    void uncover();

    QQuickView& m_window;
    const Device m_device;
    const std::function<void()> m_becomeActive;
    Qt::ApplicationState m_state;
    bool m_wasShown;
    bool m_owesLock = false;      ///< before the cover goes
    QPointer<QQuickItem> m_cover; ///< of the window
    std::vector<QPointer<QQuickItem>> m_covered;
};

} // namespace lodestar

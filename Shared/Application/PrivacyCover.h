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

/// While a passcode is required, covers the window when it goes out of sight, until the application becomes active
/// again. So neither the picture that the system keeps of the application, nor a screen reader, nor the first frame of
/// a window that comes back shows anything of the interface. The cover itself locks nothing: when the application
/// becomes active, the lock comes before the cover goes. Main thread.
///
/// On a desk, a window without the keyboard focus is still in sight, for the person who left it there, and is not
/// covered. A window that is minimised, hidden or on another workspace is covered. On a phone, another program that
/// takes the focus takes the whole screen, and the system takes its picture then; so losing the focus is enough.
class PrivacyCover : public QObject
{
public:
    enum class Device { Phone, Desk };
    static Device deviceOf(const QScreen& screen);

    /// The window must outlive this object. `becomeActive` locks the interface if a passcode is required.
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
    bool m_owesLock = false;      ///< whether `becomeActive` is to be called before the cover goes
    QPointer<QQuickItem> m_cover; ///< owned by the window
    std::vector<QPointer<QQuickItem>> m_covered;
};

} // namespace lodestar

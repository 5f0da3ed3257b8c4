// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Menu.h"

#include <QPointer>

class QQmlEngine;
class QQuickItem;
class QQuickWindow;

namespace lodestar
{

/// An alert that belongs to no screen, over whichever window is in front: news of the clipboard and of files. One for
/// the process. Main thread.
class WindowDialogs
{
public:
    static WindowDialogs& shared();
    WindowDialogs(const WindowDialogs&) = delete;
    WindowDialogs& operator=(const WindowDialogs&) = delete;

    /// Says a sentence, which stays until it is confirmed.
    void tell(const QString& sentence);
    /// Asks before something is done. `chosen` is called only when it shall be done.
    void ask(const QString& question, const QString& message, const MenuChoice& action, std::function<void()> chosen);
    MenuOutlet& alert() { return m_alert; }

    /// The window in front, or any that is seen; null for none.
    static QQuickWindow* window();
    /// The engine of the window's scenes; null for a window without.
    static QQmlEngine* engineOf(const QQuickWindow& window);

private:
    WindowDialogs() = default;
    /// Makes the alert's view in the window in front. Without a window only the outlet knows of the alert.
    void makeView();

    MenuOutlet m_alert;
    QPointer<QQuickItem> m_view;
};

} // namespace lodestar

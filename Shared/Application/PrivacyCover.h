// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <Qt>

class QQuickView;

namespace lodestar
{

/// Covers a window while the application is not active and a passcode is required: what the system keeps as the
/// application's picture shows nothing of the interface, and neither does the last frame before the passcode screen
/// comes up. It locks nothing; that happens when the application becomes active. Main thread.
class PrivacyCover
{
public:
    /// The window outlives this.
    explicit PrivacyCover(QQuickView& window) : m_window(window) {}

    /// Becoming active: after whatever then replaces the interface.
    void applicationStateDidChange(Qt::ApplicationState state);

private:
    void cover();

    QQuickView& m_window;
    QPointer<QQuickItem> m_cover; ///< of the window
};

} // namespace lodestar

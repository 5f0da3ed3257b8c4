// SPDX-License-Identifier: Apache-2.0
#include "Application/WindowPlace.h"

#include "Application/KeptState.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace lodestar
{
namespace
{

constexpr auto placeKey = "window"; ///< x, y, width and height, in points
constexpr auto maximizedKey = "windowIsMaximized";

/// Empty when no place is kept.
QRect keptPlace()
{
    const std::string kept = KeptState::shared().stringForKey(placeKey).value_or("");
    const QStringList numbers = QString::fromStdString(kept).split(u' ');
    return numbers.size() == 4 ? QRect(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt())
                               : QRect();
}

/// The screen on which enough of the window's upper edge lies to move the window by it; null when there is none.
const QScreen* screenOf(const QRect& place)
{
    constexpr int holdable = 48;
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.begin(), screens.end(), [&place](const QScreen* screen) {
        const QRect seen = screen->availableGeometry() & QRect(place.topLeft(), QSize(place.width(), holdable));
        return seen.width() >= holdable && seen.height() >= holdable / 2;
    });
    return found == screens.end() ? nullptr : *found;
}

} // namespace

void bringToFront(QWindow& window)
{
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

WindowPlace::WindowPlace(QWindow& window) : m_window(window)
{
    restore();
    // A maximised window is told its new size before its new state; the timer lets both arrive.
    constexpr std::chrono::milliseconds settling{500};
    m_settled.setSingleShot(true);
    m_settled.setInterval(settling);
    connect(&m_settled, &QTimer::timeout, this, &WindowPlace::remember);
    const auto changed = [this] { m_settled.start(); };
    connect(&window, &QWindow::xChanged, this, changed);
    connect(&window, &QWindow::yChanged, this, changed);
    connect(&window, &QWindow::widthChanged, this, changed);
    connect(&window, &QWindow::heightChanged, this, changed);
    connect(&window, &QWindow::windowStateChanged, this, changed);
}

WindowPlace::~WindowPlace()
{
    if (m_settled.isActive()) {
        remember();
    }
}

void WindowPlace::restore()
{
    const QRect place = keptPlace();
    if (place.isEmpty()) {
        return;
    }
    const QScreen* const screen = screenOf(place);
    const QScreen& sizeOf = screen != nullptr ? *screen : *m_window.screen();
    m_window.resize(place.size().boundedTo(sizeOf.availableSize()));
    if (screen != nullptr) {
        m_window.setFramePosition(place.topLeft());
    }
    if (KeptState::shared().boolForKey(maximizedKey)) {
        m_window.setWindowStates(Qt::WindowMaximized);
    }
}

void WindowPlace::remember()
{
    const Qt::WindowStates states = m_window.windowStates();
    if (states.testFlag(Qt::WindowMinimized) || states.testFlag(Qt::WindowFullScreen)) {
        return;
    }
    const bool maximized = states.testFlag(Qt::WindowMaximized);
    KeptState::shared().setBool(maximized, maximizedKey);
    if (!maximized) {
        const QPoint place = m_window.framePosition();
        const QString kept = QStringLiteral("%1 %2 %3 %4");
        KeptState::shared().setString(
            kept.arg(place.x()).arg(place.y()).arg(m_window.width()).arg(m_window.height()).toStdString(), placeKey);
    }
}

} // namespace lodestar

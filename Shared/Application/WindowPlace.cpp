// SPDX-License-Identifier: Apache-2.0
#include "Application/WindowPlace.h"

#include "Application/KeptState.h"

#include <QGuiApplication>
#include <QJsonObject>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace lodestar
{
namespace
{

QString key()
{
    return QStringLiteral("window");
}

QRect rectOf(const QJsonObject& kept)
{
    const auto number = [&kept](const char* name) { return kept.value(QLatin1String(name)).toInt(); };
    return {number("x"), number("y"), number("width"), number("height")};
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
    const QJsonObject kept = KeptState::shared().value(key()).toObject();
    const QRect place = rectOf(kept);
    if (place.isEmpty()) {
        return;
    }
    const QScreen* const screen = screenOf(place);
    const QScreen& sizeOf = screen != nullptr ? *screen : *m_window.screen();
    m_window.resize(place.size().boundedTo(sizeOf.availableSize()));
    if (screen != nullptr) {
        m_window.setFramePosition(place.topLeft());
    }
    if (kept.value(QStringLiteral("maximized")).toBool()) {
        m_window.setWindowStates(Qt::WindowMaximized);
    }
}

void WindowPlace::remember()
{
    const Qt::WindowStates states = m_window.windowStates();
    if (states.testFlag(Qt::WindowMinimized) || states.testFlag(Qt::WindowFullScreen)) {
        return;
    }
    QJsonObject kept = KeptState::shared().value(key()).toObject();
    const bool maximized = states.testFlag(Qt::WindowMaximized);
    kept.insert(QStringLiteral("maximized"), maximized);
    if (!maximized) {
        const QPoint place = m_window.framePosition();
        kept.insert(QStringLiteral("x"), place.x());
        kept.insert(QStringLiteral("y"), place.y());
        kept.insert(QStringLiteral("width"), m_window.width());
        kept.insert(QStringLiteral("height"), m_window.height());
    }
    KeptState::shared().setValue(key(), kept);
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Application/WindowPlace.h"

#include "Application/KeptState.h"

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <utility>

namespace lodestar
{
namespace
{

/// The last place of all: x, y, width and height, in points, and whether the window filled the screen. For screens that
/// were never met before.
constexpr auto lastKey = "window";
constexpr auto maximizedKey = "windowIsMaximized";

struct Place {
    QRect rect;
    bool isMaximized = false;
};

std::optional<Place> keptPlace(const std::string& key, bool isMaximized)
{
    const std::string kept = KeptState::shared().stringForKey(key).value_or("");
    const QStringList numbers = QString::fromStdString(kept).split(u' ');
    if (numbers.size() < 4) {
        return {};
    }
    const QRect rect(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt());
    return rect.isEmpty() ? std::nullopt : std::optional(Place{rect, isMaximized || numbers.size() > 4});
}

/// The key of the place on the screens that are there now. Their names and geometries are told apart, not kept.
std::string setUpKey()
{
    QStringList screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->geometry();
        screens << QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(screen->name())
                       .arg(area.x())
                       .arg(area.y())
                       .arg(area.width())
                       .arg(area.height());
    }
    screens.sort();
    constexpr int enough = 12; // hexadecimal digits
    const QByteArray hash =
        QCryptographicHash::hash(screens.join(u'\n').toUtf8(), QCryptographicHash::Sha256).toHex().left(enough);
    return std::string(lastKey) + "." + hash.toStdString();
}

/// Whether windows know where they stand. On Wayland they do not, and are not asked.
bool arePlacesKnown()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
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

WindowPlace::WindowPlace(QWindow& window) : m_window(window), m_resting(window.geometry())
{
    restore();
    // A maximised window is told its new size before its new state; the timer lets both arrive.
    constexpr std::chrono::milliseconds settling{500};
    m_settled.setSingleShot(true);
    m_settled.setInterval(settling);
    connect(&m_settled, &QTimer::timeout, this, &WindowPlace::settle);
    const auto screensChanged = [this] {
        m_screensChanged = true;
        m_settled.start();
    };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, screensChanged);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, screensChanged);
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
        settle();
    }
}

void WindowPlace::restore()
{
    std::optional<Place> kept = keptPlace(setUpKey(), false);
    if (!kept) {
        kept = keptPlace(lastKey, KeptState::shared().boolForKey(maximizedKey));
    }
    if (!kept) {
        return;
    }
    const QScreen* const screen = screenOf(kept->rect);
    const QScreen& sizeOf = screen != nullptr ? *screen : *m_window.screen();
    m_window.resize(kept->rect.size().boundedTo(sizeOf.availableSize()));
    if (screen != nullptr && arePlacesKnown()) {
        m_window.setFramePosition(kept->rect.topLeft());
    }
    m_window.setWindowStates(kept->isMaximized ? Qt::WindowMaximized : Qt::WindowNoState);
    m_resting = kept->rect;
}

void WindowPlace::settle()
{
    const Qt::WindowStates states = m_window.windowStates();
    if (states.testFlag(Qt::WindowMinimized) || states.testFlag(Qt::WindowFullScreen)) {
        return;
    }
    // With screens that are known, the window goes back to where it stood on them; with others, it stays where the
    // system has put it.
    if (std::exchange(m_screensChanged, false) && keptPlace(setUpKey(), false)) {
        restore();
    } else {
        remember();
    }
}

void WindowPlace::remember()
{
    const bool isMaximized = m_window.windowStates().testFlag(Qt::WindowMaximized);
    if (!isMaximized) {
        const QPoint place = arePlacesKnown() ? m_window.framePosition() : m_resting.topLeft();
        m_resting = QRect(place, m_window.size());
    }
    const QString rect = QStringLiteral("%1 %2 %3 %4")
                             .arg(m_resting.x())
                             .arg(m_resting.y())
                             .arg(m_resting.width())
                             .arg(m_resting.height());
    UserDefaults& kept = KeptState::shared();
    kept.setString((isMaximized ? rect + QStringLiteral(" maximized") : rect).toStdString(), setUpKey());
    kept.setString(rect.toStdString(), lastKey);
    kept.setBool(isMaximized, maximizedKey);
}

} // namespace lodestar

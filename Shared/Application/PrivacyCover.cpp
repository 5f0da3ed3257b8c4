// SPDX-License-Identifier: Apache-2.0
#include "Application/PrivacyCover.h"

#include "Application/Model/Setting.h"
#include "Platform/UserDefaults.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickView>
#include <QScreen>

#include <utility>

namespace lodestar
{
namespace
{

/// The cover's z; it lies above the layer that holds sheets and alerts.
constexpr double aboveEverything = 1e7;

bool isShown(const QQuickView& window)
{
    return window.isVisible() && window.isExposed() && !window.windowStates().testFlag(Qt::WindowMinimized);
}

} // namespace

PrivacyCover::Device PrivacyCover::deviceOf(const QScreen& screen)
{
#if defined(Q_OS_ANDROID) || defined(Q_OS_IOS)
    Q_UNUSED(screen);
    return Device::Phone;
#else
    constexpr int shortSideOfTablets = 600; // points
    const QSize size = screen.size();
    return qMin(size.width(), size.height()) < shortSideOfTablets ? Device::Phone : Device::Desk;
#endif
}

PrivacyCover::PrivacyCover(QQuickView& window, Device device, std::function<void()> becomeActive)
    : m_window(window),
      m_device(device),
      m_becomeActive(std::move(becomeActive)),
      m_state(QGuiApplication::applicationState()),
      m_wasShown(isShown(window))
{
    window.installEventFilter(this);
}

void PrivacyCover::applicationStateDidChange(Qt::ApplicationState state)
{
    m_state = state;
    if (state == Qt::ApplicationActive) {
        // Locks each time the keyboard focus comes back, on a desk too: that the window stayed in sight does not tell
        // who returns to it. A dialog of the system that took the focus thus leads to the passcode screen as well. Both
        // are meant.
        m_owesLock = true;
        becomeActive();
    } else if (state != Qt::ApplicationInactive || m_device == Device::Phone) {
        cover();
    }
}

bool PrivacyCover::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Expose:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        windowDidChange();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PrivacyCover::windowDidChange()
{
    const bool shown = isShown(m_window);
    if (shown == std::exchange(m_wasShown, shown)) {
        return;
    }
    if (!shown) {
        cover();
    } else if (m_cover && m_state == Qt::ApplicationActive) {
        becomeActive();
    }
}

void PrivacyCover::becomeActive()
{
    // The window may get the keyboard focus before it comes into sight, so the lock may be done already.
    if (std::exchange(m_owesLock, false)) {
        m_becomeActive();
    }
    if (isShown(m_window)) {
        uncover();
    }
}

void PrivacyCover::cover()
{
    if (m_cover || !UserDefaults::standard().boolForKey(Setting::requirePassword)) {
        return;
    }
    m_owesLock = true;
    QQmlComponent component(m_window.engine(), QUrl(QStringLiteral("qrc:/Lodestar/Application/PrivacyCoverScene.qml")));
    QQuickItem* const root = m_window.contentItem();
    const QList<QQuickItem*> beneath = root->childItems();
    QObject* const made = component.createWithInitialProperties(
        {{QStringLiteral("parent"), QVariant::fromValue(root)}, {QStringLiteral("z"), aboveEverything}});
    m_cover = qobject_cast<QQuickItem*>(made);
    if (!m_cover) {
        delete made;
        qWarning("The cover cannot be shown: %s", qPrintable(component.errorString()));
        return;
    }
    m_cover->setParent(root);
    // Screen readers read every visible item, even below the cover.
    for (QQuickItem* item : beneath) {
        if (item->isVisible()) {
            item->setVisible(false);
            m_covered.emplace_back(item);
        }
    }
}

void PrivacyCover::uncover()
{
    delete m_cover.data();
    for (const QPointer<QQuickItem>& item : std::exchange(m_covered, {})) {
        if (item) {
            item->setVisible(true);
        }
    }
}

} // namespace lodestar

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

/// Above the layer in which sheets and alerts stand.
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
        // Each time the keyboard comes back, on a desk as well: that the window stayed in sight tells nothing about who
        // returns to it. Meant, like the passcode after a dialog of the system.
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
    // A window may get the keyboard first and come into sight then.
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
    // A reader reads what is visible, whatever lies above it.
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

// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/NavigationStack.h"

#include "Kit/Core/MakeItem.h"

#include <QEvent>

#include <utility>

namespace lodestar
{

NavigationStack::NavigationStack(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    setFiltersChildMouseEvents(true);
}

void NavigationStack::setController(NavigationController* controller)
{
    if (m_controller == controller) {
        return;
    }
    m_controller = controller;
    connect(controller, &NavigationController::pushed, this, &NavigationStack::push);
    connect(controller, &NavigationController::popped, this, [this](ViewController*, bool animated) { pop(animated); });
    connect(controller, &NavigationController::removed, this, &NavigationStack::remove);
    Q_EMIT controllerChanged();
}

void NavigationStack::componentComplete()
{
    QQuickItem::componentComplete();
    for (int index = 0; m_controller && index < m_controller->depth(); ++index) {
        push(m_controller->viewControllerAt(index), false);
    }
}

void NavigationStack::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    for (QQuickItem* page : m_pages) {
        page->setSize(size());
    }
    place();
}

bool NavigationStack::childMouseEventFilter(QQuickItem* /*item*/, QEvent* event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick ||
                         event->type() == QEvent::TouchBegin;
    return isPress && isBusy();
}

void NavigationStack::push(ViewController* shown, bool animated)
{
    // Before the item is complete, nothing is drawn; completion then makes pages for the whole stack.
    if (!isComponentComplete() || !m_page) {
        return;
    }
    QQuickItem* const page =
        makeItem(*m_page, {{QStringLiteral("controller"), QVariant::fromValue<QObject*>(shown)}}, *this);
    if (page == nullptr) {
        qWarning("A screen cannot be shown: %s", qPrintable(m_page->errorString()));
        return;
    }
    QQuickItem* const below = m_pages.empty() ? nullptr : m_pages.back();
    m_pages.push_back(page);
    slide(page, below, false, animated);
}

void NavigationStack::pop(bool animated)
{
    if (m_pages.size() > 1) {
        QQuickItem* const going = m_pages.back();
        m_pages.pop_back();
        slide(m_pages.back(), going, true, animated);
    }
}

void NavigationStack::remove(int index)
{
    setProgress(1); // the page may be one of the two that slide
    if (index < std::ssize(m_pages)) {
        m_pages[static_cast<std::size_t>(index)]->deleteLater();
        m_pages.erase(m_pages.begin() + index);
    }
}

void NavigationStack::slide(QQuickItem* coming, QQuickItem* going, bool isPop, bool animated)
{
    setProgress(1); // ends a slide that still runs
    m_coming = coming;
    m_going = going;
    m_isPop = isPop;
    coming->setVisible(true);
    coming->setFocus(true, Qt::OtherFocusReason); // keys go to the coming page from now on
    if (animated && going != nullptr) {
        setProgress(0);
    } else {
        settle();
    }
}

void NavigationStack::setProgress(qreal progress)
{
    const bool wasBusy = isBusy();
    if (std::exchange(m_progress, progress) == progress) {
        return;
    }
    place();
    Q_EMIT progressChanged();
    if (wasBusy != isBusy()) {
        Q_EMIT busyChanged();
    }
    if (!isBusy()) {
        settle();
    }
}

/// The upper screen moves over the whole width, the lower screen over a third of it.
void NavigationStack::place()
{
    QQuickItem* const upper = m_isPop ? m_going : m_coming;
    QQuickItem* const lower = m_isPop ? m_coming : m_going;
    const qreal uncovered = m_isPop ? m_progress : 1 - m_progress;
    const qreal away = m_fades ? 0 : m_mirrored ? -width() : width();
    if (upper != nullptr) {
        upper->setX(uncovered * away);
        upper->setOpacity(m_fades ? 1 - uncovered : 1);
    }
    if (lower != nullptr) {
        lower->setX((uncovered - 1) * away / 3);
    }
}

void NavigationStack::settle()
{
    const QPointer<QQuickItem> coming = std::exchange(m_coming, nullptr);
    const QPointer<QQuickItem> going = std::exchange(m_going, nullptr);
    if (!coming) {
        return;
    }
    coming->setX(0);
    coming->setOpacity(1);
    if (going) {
        coming->forceActiveFocus(Qt::OtherFocusReason);
        going->setVisible(false);
        going->setX(0);
        if (m_isPop) {
            going->deleteLater();
        }
    }
}

} // namespace lodestar

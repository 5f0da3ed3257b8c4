// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/NavigationStack.h"

#include "Kit/Core/MakeItem.h"

#include <QEvent>

#include <algorithm>
#include <utility>

namespace lodestar
{

NavigationStack::NavigationStack(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    setFiltersChildMouseEvents(true);
    connect(this, &NavigationStack::mirroredChanged, this, &NavigationStack::arrange);
}

void NavigationStack::setController(NavigationController* controller)
{
    if (m_controller == controller) {
        return;
    }
    m_controller = controller;
    connect(controller, &NavigationController::pushed, this, &NavigationStack::push);
    connect(controller, &NavigationController::popped, this, [this](ViewController*, bool animated) { pop(animated); });
    connect(controller, &NavigationController::replaced, this, &NavigationStack::replace);
    connect(controller, &NavigationController::removed, this, &NavigationStack::remove);
    connect(controller, &NavigationController::columnsChanged, this, &NavigationStack::arrange);
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
    arrange();
}

bool NavigationStack::childMouseEventFilter(QQuickItem* /*item*/, QEvent* event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick ||
                         event->type() == QEvent::TouchBegin;
    return isPress && isBusy();
}

QQuickItem* NavigationStack::startPage() const
{
    const int start = m_controller ? m_controller->startColumn() : -1;
    return start >= 0 && start < std::ssize(m_pages) ? m_pages[static_cast<std::size_t>(start)] : nullptr;
}

QQuickItem* NavigationStack::pageOf(const QQuickItem& item) const
{
    const auto found =
        std::ranges::find_if(m_pages, [&](QQuickItem* page) { return page == &item || page->isAncestorOf(&item); });
    return found == m_pages.end() ? nullptr : *found;
}

ViewController* NavigationStack::screenAbove(const QQuickItem& page) const
{
    const auto found = std::ranges::find(m_pages, &page);
    return found == m_pages.end() || !m_controller
               ? nullptr
               : m_controller->viewControllerAt(static_cast<int>(found - m_pages.begin()) + 1);
}

bool NavigationStack::enter(bool end)
{
    QQuickItem* const page = end ? lastPage() : startPage();
    if (!isSplit() || isEndEmpty() || page == nullptr || page->hasActiveFocus()) {
        return false;
    }
    page->forceActiveFocus(Qt::TabFocusReason);
    return true;
}

QQuickItem* NavigationStack::makePage(ViewController* shown)
{
    // Before the item is complete, nothing is drawn; completion then makes pages for the whole stack.
    if (!isComponentComplete() || !m_page) {
        return nullptr;
    }
    QQuickItem* const page =
        makeItem(*m_page, {{QStringLiteral("controller"), QVariant::fromValue<QObject*>(shown)}}, *this);
    if (page == nullptr) {
        qWarning("A screen cannot be shown: %s", qPrintable(m_page->errorString()));
    }
    return page;
}

void NavigationStack::push(ViewController* shown, bool animated)
{
    if (QQuickItem* const page = makePage(shown)) {
        setProgress(1); // ends a slide that still runs
        const std::vector<QQuickItem*> before = seenPages();
        m_pages.push_back(page);
        slide(before, page, animated && !before.empty());
    }
}

void NavigationStack::pop(bool animated)
{
    if (m_pages.size() > 1) {
        setProgress(1);
        const std::vector<QQuickItem*> before = seenPages();
        m_popped = m_pages.back();
        m_pages.pop_back();
        slide(before, m_popped, animated);
    }
}

void NavigationStack::replace(ViewController* shown)
{
    if (QQuickItem* const page = makePage(shown)) {
        setProgress(1);
        QQuickItem* const previous = std::exchange(m_pages.back(), page);
        arrange();
        giveKeyboard(page);
        previous->setVisible(false);
        previous->deleteLater();
    }
}

void NavigationStack::remove(int index)
{
    setProgress(1); // the page may be one of those that slide
    if (index < std::ssize(m_pages)) {
        m_pages[static_cast<std::size_t>(index)]->deleteLater();
        m_pages.erase(m_pages.begin() + index);
        arrange();
    }
}

std::vector<QQuickItem*> NavigationStack::seenPages() const
{
    std::vector<QQuickItem*> seen;
    std::ranges::copy_if(m_pages, std::back_inserter(seen), &QQuickItem::isVisible);
    return seen;
}

bool NavigationStack::isToBeSeen(const QQuickItem& page) const
{
    return &page == lastPage() || &page == startPage();
}

qreal NavigationStack::restWidth(std::size_t index) const
{
    if (!isSplit()) {
        return width();
    }
    return index + 1 < m_pages.size() || index == 0 ? m_startWidth : width() - m_startWidth;
}

qreal NavigationStack::restStart(std::size_t index) const
{
    return isSplit() && index > 0 && index + 1 == m_pages.size() ? m_startWidth : 0;
}

void NavigationStack::putAt(QQuickItem& page, qreal start) const
{
    page.setX(m_mirrored ? width() - start - page.width() : start);
}

/// Shows the pages that are to be seen, each in its size and place, and hides the others.
void NavigationStack::arrange()
{
    setProgress(1);
    for (std::size_t index = 0; index < m_pages.size(); ++index) {
        QQuickItem& page = *m_pages[index];
        const bool isShown = isToBeSeen(page);
        // A page that two columns hide keeps its width: it comes up in that column again, scrolled as it was.
        const bool keepsWidth = !isShown && m_controller->hasRoomForTwo();
        page.setSize({keepsWidth ? page.width() : restWidth(index), height()});
        putAt(page, restStart(index));
        page.setOpacity(1);
        page.setVisible(isShown);
    }
    const bool isKeyboardHidden = !m_pages.empty() && std::ranges::none_of(m_pages, [this](const QQuickItem* page) {
        return page->hasFocus() && isToBeSeen(*page);
    });
    if (isKeyboardHidden && hasActiveFocus()) {
        m_pages.back()->forceActiveFocus(Qt::OtherFocusReason);
    } else if (isKeyboardHidden) {
        m_pages.back()->setFocus(true, Qt::OtherFocusReason);
    }
    m_wasSplit = isSplit();
    Q_EMIT placesChanged();
}

/// Slides from what was seen to what is to be seen. The upper page moves over the whole width. Columns move by one
/// column; lower pages that the upper covers move by a third of the width.
void NavigationStack::slide(const std::vector<QQuickItem*>& before, QQuickItem* upper, bool animated)
{
    const bool betweenColumns = m_wasSplit && isSplit();
    const qreal below = -(betweenColumns ? m_startWidth : width() / 3);
    const auto placeNow = [this](const QQuickItem& page) {
        return m_mirrored ? width() - page.x() - page.width() : page.x();
    };
    std::vector<Slide> slides;
    slides.reserve(before.size() + 2);
    for (QQuickItem* page : before) {
        slides.push_back({.page = page,
                          .from = placeNow(*page),
                          .to = page == upper ? width() : placeNow(*page) + below,
                          .isUpper = page == upper,
                          .leaves = true});
    }
    for (std::size_t index = 0; index < m_pages.size(); ++index) {
        QQuickItem* const page = m_pages[index];
        if (!isToBeSeen(*page)) {
            continue;
        }
        auto found = std::ranges::find_if(slides, [page](const Slide& each) { return each.page == page; });
        if (found == slides.end()) {
            found = slides.insert(found, {.page = page, .from = page == upper ? width() : restStart(index) + below});
            found->isUpper = page == upper;
        }
        found->to = restStart(index);
        found->leaves = false;
        page->setSize({restWidth(index), height()});
        page->setVisible(true);
    }
    m_slides = std::move(slides);
    m_wasSplit = isSplit();
    Q_EMIT placesChanged();
    giveKeyboard(m_pages.back());
    if (animated) {
        setProgress(0);
    } else {
        settle();
    }
}

/// Keys go to the page from now on, unless they are to stay where the screen was opened.
void NavigationStack::giveKeyboard(QQuickItem* page)
{
    const QPointer<QQuickItem> stays = std::exchange(m_keyboardStays, nullptr);
    if (m_popped || !stays || stays != startPage() || !stays->hasFocus()) {
        page->setFocus(true, Qt::OtherFocusReason);
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

void NavigationStack::place()
{
    for (const Slide& each : m_slides) {
        if (!each.page) {
            continue;
        }
        if (m_fades) {
            // Pages stand where they rest, and the upper one appears or vanishes there.
            putAt(*each.page, each.leaves ? each.from : each.to);
            if (each.isUpper) {
                each.page->setOpacity(each.leaves ? 1 - m_progress : m_progress);
            }
        } else {
            putAt(*each.page, each.from + (each.to - each.from) * m_progress);
        }
    }
}

void NavigationStack::settle()
{
    const std::vector<Slide> slides = std::exchange(m_slides, {});
    if (slides.empty()) {
        return;
    }
    const auto holder = std::ranges::find_if(m_pages, &QQuickItem::hasFocus);
    if (slides.size() > 1 && holder != m_pages.end()) {
        (*holder)->forceActiveFocus(Qt::OtherFocusReason);
    }
    if (const QPointer<QQuickItem> popped = std::exchange(m_popped, nullptr)) {
        popped->setVisible(false);
        popped->deleteLater();
    }
    arrange();
}

} // namespace lodestar

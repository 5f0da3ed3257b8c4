// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/PagedIntro.h"

#include <QQmlEngine>

#include <utility>

namespace lodestar
{

PageControlOutlet::PageControlOutlet(int numberOfPages, QObject* parent)
    : QObject(parent), m_numberOfPages(numberOfPages)
{
}

void PageControlOutlet::setCurrentPage(int page)
{
    if (page >= 0 && page < m_numberOfPages && std::exchange(m_currentPage, page) != page) {
        Q_EMIT currentPageChanged();
    }
}

PagedIntro::PagedIntro(std::vector<IntroPage> pages)
    : m_pages(std::move(pages)), m_pageControl(static_cast<int>(m_pages.size()))
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

QVariantList PagedIntro::pageList() const
{
    QVariantList list;
    for (const IntroPage& page : m_pages) {
        list.append(QVariant::fromValue(page));
    }
    return list;
}

void PagedIntro::setDelegate(std::weak_ptr<PagedIntroDelegate> delegate)
{
    m_delegate = std::move(delegate);
}

void PagedIntro::showInView(PagedIntroHost& view, double animationDuration)
{
    m_animationDuration = animationDuration;
    m_presented = true;
    view.setIntro(shared_from_this());
}

void PagedIntro::turnPage()
{
    if (m_pageControl.currentPage() + 1 < m_pageControl.numberOfPages()) {
        m_pageControl.setCurrentPage(m_pageControl.currentPage() + 1);
    } else {
        finish();
    }
}

void PagedIntro::finish()
{
    if (!std::exchange(m_presented, false)) {
        return;
    }
    // The delegate may show the next intro; the screen then releases this one.
    const auto keep = shared_from_this();
    Q_EMIT presentedChanged();
    if (const auto delegate = m_delegate.lock()) {
        delegate->introDidFinish();
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/ViewController.h"

#include "Platform/Queues/MainQueue.h"

#include <QQmlEngine>

#include <utility>

namespace lodestar
{

ViewController::ViewController()
{
    // Invokable functions return controllers to QML, whose garbage collector would otherwise delete those without a
    // parent.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

ViewController::~ViewController() = default;

void ViewController::setTitle(const QString& title)
{
    if (m_title != title) {
        m_title = title;
        Q_EMIT titleChanged();
    }
}

void ViewController::setBackTitle(const QString& title)
{
    // Null and empty differ: null shows this screen's title, empty shows no text.
    if (m_backTitle != title || m_backTitle.isNull() != title.isNull()) {
        m_backTitle = title;
        Q_EMIT backTitleChanged();
    }
}

void ViewController::loadViewIfNeeded()
{
    if (!std::exchange(m_viewLoaded, true)) {
        viewDidLoad();
    }
}

void ViewController::beginAppearance()
{
    loadViewIfNeeded();
    if (!std::exchange(m_appeared, true)) {
        viewDidAppear();
    }
}

void ViewController::endAppearance()
{
    if (std::exchange(m_appeared, false)) {
        viewDidDisappear();
    }
}

bool ViewController::canGoBack() const
{
    return m_container != nullptr && m_container->screenBelow(*this) != nullptr;
}

QString ViewController::backButtonTitle() const
{
    const ViewController* const below = m_container != nullptr ? m_container->screenBelow(*this) : nullptr;
    if (below == nullptr) {
        return {};
    }
    return below->backTitle().isNull() ? below->title() : below->backTitle();
}

void ViewController::goBack()
{
    if (canGoBack()) {
        m_container->goBackFrom(*this);
    }
}

TabBarController* ViewController::tabBarController() const
{
    return m_tabBarController != nullptr || m_container == nullptr ? m_tabBarController
                                                                   : m_container->tabBarController();
}

void ViewController::presentSemiViewController(std::shared_ptr<ViewController> controller, SemiModalOptions options)
{
    dismissSemiModalView();
    ViewController* content = controller.get();
    content->loadViewIfNeeded();
    m_semiModal = std::make_unique<SemiModalPresentation>(std::move(controller), options);
    Q_EMIT semiModalChanged();
    content->beginAppearance();
}

void ViewController::resizeSemiView(double height)
{
    if (m_semiModal) {
        m_semiModal->setHeight(height);
    }
}

void ViewController::dismissSemiModalView()
{
    if (!m_semiModal) {
        return;
    }
    const std::unique_ptr<SemiModalPresentation> presentation = std::move(m_semiModal);
    presentation->controller()->endAppearance();
    Q_EMIT semiModalChanged();
    // A method of the sheet's controller may be on the call stack, so the controller is kept until that method has
    // returned.
    MainQueue::shared().async([keep = presentation->sharedController()] {});
}

void ViewController::setIntro(std::shared_ptr<PagedIntro> intro)
{
    // The item that draws the previous intro must hear of the change before that intro is deleted.
    const std::shared_ptr<PagedIntro> previous = std::exchange(m_intro, std::move(intro));
    Q_EMIT introChanged();
}

SemiModalPresentation::SemiModalPresentation(std::shared_ptr<ViewController> controller,
                                             ViewController::SemiModalOptions options)
    : m_controller(std::move(controller)), m_height(options.height), m_pushParentBack(options.pushParentBack)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void SemiModalPresentation::setHeight(double height)
{
    if (m_height != height) {
        m_height = height;
        Q_EMIT heightChanged();
    }
}

void deleteControllerOnMain(ViewController* controller)
{
    MainQueue::shared().run([controller] { delete controller; });
}

} // namespace lodestar

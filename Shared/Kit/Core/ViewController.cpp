// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/ViewController.h"

#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/Queues/MainQueue.h"

#include <QQmlEngine>

#include <algorithm>
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
    return m_navigationController != nullptr && navigationController()->rootViewController() != this;
}

QString ViewController::backButtonTitle() const
{
    if (!canGoBack()) {
        return {};
    }
    const auto& stack = navigationController()->viewControllers();
    const auto self = std::find_if(stack.begin(), stack.end(), [this](const auto& each) { return each.get() == this; });
    if (self == stack.begin() || self == stack.end()) {
        return {};
    }
    const ViewController& below = **std::prev(self);
    return below.backTitle().isNull() ? below.title() : below.backTitle();
}

void ViewController::goBack()
{
    if (canGoBack() && navigationController()->topViewController() == this) {
        navigationController()->pop();
    }
}

TabBarController* ViewController::tabBarController() const
{
    if (m_tabBarController != nullptr || m_navigationController == nullptr) {
        return m_tabBarController;
    }
    return navigationController()->tabBarController();
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

// SPDX-License-Identifier: Apache-2.0
#include "Application/FeedbackWindow.h"

#include "Application/DiscardedInterface.h"
#include "Application/LoginViewController.h"
#include "Feedback/UI/FeedbackUI.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/Kit.h"
#include "Platform/UserDefaults.h"
#include "Views/Views.h"

#include <QKeyEvent>
#include <QQmlEngine>

extern void qml_register_types_Lodestar_Application();

namespace lodestar
{
namespace
{

void installApplicationScenes(QQmlEngine& engine)
{
    // A static library: naming the generated function is what links its registration in.
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Application;
    installKit(engine);
    installViews(engine);
    installFeedbackUI(engine);
}

/// The passcode screen passes on by itself where none is required: it locks nothing then.
bool isLock(const ViewController* controller)
{
    return qobject_cast<const LoginViewController*>(controller) != nullptr &&
           UserDefaults::standard().boolForKey("requirePassword");
}

std::unique_ptr<FeedbackWindow>& theWindow()
{
    static std::unique_ptr<FeedbackWindow> window;
    return window;
}

} // namespace

FeedbackWindow::FeedbackWindow()
{
    setTitle(QStringLiteral("Lodestar"));
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize({320, 480});
    installApplicationScenes(*engine());
}

FeedbackWindow::~FeedbackWindow() = default;

FeedbackWindow* FeedbackWindow::shared()
{
    if (!theWindow()) {
        theWindow() = std::make_unique<FeedbackWindow>();
    }
    return theWindow().get();
}

void FeedbackWindow::tearDown()
{
    if (theWindow()) {
        // The scenes bind to their controllers, so they go first.
        theWindow()->setSource({});
        theWindow()->setRootViewController(nullptr);
        theWindow().reset();
    }
}

void FeedbackWindow::setRootViewController(std::shared_ptr<ViewController> controller)
{
    const auto previous = std::exchange(m_rootViewController, std::move(controller));
    if (previous) {
        previous->endAppearance();
        discardInterface(*previous, *this);
    }
    m_feedbackHost.setLocked(isLock(m_rootViewController.get()));
    Q_EMIT rootViewControllerChanged();
    if (m_rootViewController) {
        m_rootViewController->loadViewIfNeeded();
        m_rootViewController->beginAppearance();
    }
}

void FeedbackWindow::loadInterface()
{
    setInitialProperties({{QStringLiteral("window"), QVariant::fromValue(this)}});
    setSource(QUrl(QStringLiteral("qrc:/Lodestar/Application/MainScene.qml")));
}

void FeedbackWindow::motionBegan(EventType type, EventSubtype subtype)
{
    if (type == EventType::Motion && subtype == EventSubtype::MotionShake) {
        VireoLogger::feedback();
    }
}

void FeedbackWindow::keyPressEvent(QKeyEvent* event)
{
    // A desk cannot be shaken.
    constexpr auto shakeModifiers = Qt::ControlModifier | Qt::ShiftModifier;
    if (event->key() == Qt::Key_F && event->modifiers() == shakeModifiers && !event->isAutoRepeat()) {
        motionBegan(EventType::Motion, EventSubtype::MotionShake);
        event->accept();
        return;
    }
    QQuickView::keyPressEvent(event);
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#include "Application/FeedbackWindow.h"

#include "Application/DiscardedInterface.h"
#include "Application/LoginViewController.h"
#include "Application/Model/Setting.h"
#include "Feedback/UI/FeedbackUI.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/Kit.h"
#include "Kit/Core/UIFont+System.h"
#include "Platform/UserDefaults.h"
#include "Views/Views.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QQmlComponent>
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
           UserDefaults::standard().boolForKey(Setting::requirePassword);
}

QUrl mainScene()
{
    return QUrl(QStringLiteral("qrc:/Lodestar/Application/MainScene.qml"));
}

/// An engine that has compiled the window's root. It does so while the typeface is read: a window that stood already
/// would lay out all its text once more for the new face.
QQmlEngine* makeEngine()
{
    auto* const engine = new QQmlEngine;
    installApplicationScenes(*engine);
    // The engine keeps what it has compiled.
    const QQmlComponent root(engine, mainScene());
    UIFont::awaitInstalled();
    return engine;
}

/// Has the first screen, as it is without a passcode, compiled in the background. The components are the owner's.
void compileFirstScreen(QQmlEngine& engine, QObject& owner)
{
    for (const char* scene : {"qrc:/Lodestar/Kit/TabBarView.qml", "qrc:/Lodestar/Kit/NavigationView.qml",
                              "qrc:/Lodestar/Views/CorvelListScene.qml"}) {
        new QQmlComponent(&engine, QUrl(QLatin1String(scene)), QQmlComponent::Asynchronous, &owner);
    }
}

/// Loads the face at the sizes of the first screen.
void loadFirstFaces()
{
    for (const double size : {28, 17, 15, 13, 11}) {
        static_cast<void>(QFontMetricsF(UIFont::systemFontOfSize(size)).horizontalAdvance(u'x'));
    }
}

std::unique_ptr<FeedbackWindow>& theWindow()
{
    // Never destroyed by itself: where its display goes, the platform calls exit(), and by then what windows are made
    // of is gone.
    static auto& window = *new std::unique_ptr<FeedbackWindow>;
    return window;
}

} // namespace

FeedbackWindow::FeedbackWindow() : QQuickView(makeEngine(), nullptr)
{
    compileFirstScreen(*engine(), *this);
    loadFirstFaces();          // Meanwhile: there is nothing else for this thread to do.
    engine()->setParent(this); // after them: what was made with an engine goes before it
    setTitle(QStringLiteral("Lodestar"));
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize({320, 320}); // the short side of the smallest phones, in whichever way they are held
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
    setSource(mainScene());
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

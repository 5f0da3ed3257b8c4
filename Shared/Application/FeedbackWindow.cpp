// SPDX-License-Identifier: Apache-2.0
#include "Application/FeedbackWindow.h"

#include "Application/Commands.h"
#include "Application/Model/Setting.h"
#include "Feedback/UI/FeedbackUI.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/KeyTable.h"
#include "Kit/Core/Kit.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/UIFont+System.h"
#include "Platform/UserDefaults.h"
#include "Views/Views.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

extern void qml_register_types_Lodestar_Application();

namespace lodestar
{
namespace
{

void installApplicationScenes(QQmlEngine& engine)
{
    // Naming the generated function makes the linker keep the registration, which is in a static library.
    [[maybe_unused]] static volatile auto registration = &qml_register_types_Lodestar_Application;
    installKit(engine);
    installViews(engine);
    installFeedbackUI(engine);
    Commands::addKeys();
}

/// Whether the controller keeps people out: anything but the main interface does, while a passcode is required. Without
/// one, the passcode screen passes on by itself.
bool isLock(const ViewController* controller)
{
    return controller != nullptr && qobject_cast<const TabBarController*>(controller) == nullptr &&
           UserDefaults::standard().boolForKey(Setting::requirePassword);
}

/// Takes down, at once and without motion, the sheets of a screen and of those below it: sheets keep their screens
/// alive.
void dismissSheets(ViewController& controller)
{
    if (const auto* const tabs = qobject_cast<TabBarController*>(&controller)) {
        for (int index = 0; index < tabs->count(); ++index) {
            dismissSheets(*tabs->controllerAt(index));
        }
    } else if (const auto* const stack = qobject_cast<NavigationController*>(&controller)) {
        for (const auto& screen : stack->viewControllers()) {
            dismissSheets(*screen);
        }
    }
    controller.dismissSemiModalView();
}

/// Hides alerts and action sheets. A popup is destroyed with its scene, but only after the running event, and a frame
/// may be drawn before that.
void hidePopups(const QQuickWindow& window)
{
    for (const QQuickItem* layer : window.contentItem()->childItems()) {
        if (layer->inherits("QQuickOverlay")) {
            for (QQuickItem* popup : layer->childItems()) {
                popup->setVisible(false);
            }
        }
    }
}

QUrl mainScene()
{
    return QUrl(QStringLiteral("qrc:/Lodestar/Application/MainScene.qml"));
}

/// An engine that compiles the first screens in a thread of its own, while the main thread opens files.
struct Compilation {
    std::unique_ptr<QQmlEngine> engine = std::make_unique<QQmlEngine>();
    /// Owns the components that compile. Destroyed before the engine.
    std::unique_ptr<QObject> components = std::make_unique<QObject>();

    Compilation()
    {
        // This also begins the thread that reads the typeface, which must not run while the engine is made: both map
        // memory, and the engine would wait for the thread.
        installApplicationScenes(*engine);
        add(mainScene());
    }
    void add(const QUrl& scene)
    {
        new QQmlComponent(engine.get(), scene, QQmlComponent::Asynchronous, components.get());
    }
    /// Compiles, in the background, the first screen that comes up without a passcode.
    void addFirstScreen()
    {
        for (const char* scene : {"qrc:/Lodestar/Kit/TabBarView.qml", "qrc:/Lodestar/Kit/NavigationView.qml",
                                  "qrc:/Lodestar/Views/CorvelListScene.qml"}) {
            add(QUrl(QLatin1String(scene)));
        }
    }
    /// Waits until the root is compiled. The thread cannot begin a plugin without the main thread, which serves it
    /// here.
    void awaitRoot() { const QQmlComponent root(engine.get(), mainScene()); }
};

/// What was begun and no window has taken over yet. Never destroyed, like the window.
std::unique_ptr<Compilation>& compilation()
{
    static auto& begun = *new std::unique_ptr<Compilation>;
    return begun;
}

/// Loads the typeface at the sizes of the first screen.
void loadFirstFaces()
{
    for (const double size : {28, 17, 15, 13, 11}) {
        static_cast<void>(QFontMetricsF(UIFont::systemFontOfSize(size)).horizontalAdvance(u'x'));
    }
}

/// Waits for the typeface, which a thread reads: with a new typeface, an existing window would lay out all its text
/// once more.
QQmlEngine* begunEngine()
{
    FeedbackWindow::beginCompilation();
    compilation()->awaitRoot();
    compilation()->addFirstScreen();
    UIFont::awaitInstalled();
    return compilation()->engine.get();
}

std::unique_ptr<FeedbackWindow>& theWindow()
{
    // The pointer is never destroyed: when the display goes away, the platform calls exit(), and what a window needs
    // for its destruction is gone by then.
    static auto& window = *new std::unique_ptr<FeedbackWindow>;
    return window;
}

} // namespace

FeedbackWindow::FeedbackWindow() : QQuickView(begunEngine(), nullptr)
{
    const std::unique_ptr<Compilation> begun = std::move(compilation());
    begun->components.release()->setParent(this);
    begun->engine.release()->setParent(this); // after the components, which must be destroyed before their engine
    loadFirstFaces();                         // while the screens compile; this thread has nothing else to do
    setTitle(QStringLiteral("Lodestar"));
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize({320, 320}); // the short side of the smallest phones, whichever way they are held
}

FeedbackWindow::~FeedbackWindow() = default;

void FeedbackWindow::beginCompilation()
{
    if (!compilation()) {
        compilation() = std::make_unique<Compilation>();
    }
}

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
        // The scenes bind to their controllers, so the scenes are destroyed first.
        theWindow()->setSource({});
        // Repeaters only hand their items to the application, whose own destruction would be too late for a text.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        theWindow()->setRootViewController(nullptr);
        theWindow().reset();
    }
}

void FeedbackWindow::setRootViewController(std::shared_ptr<ViewController> controller)
{
    const auto previous = std::exchange(m_rootViewController, std::move(controller));
    if (previous) {
        previous->endAppearance();
        dismissSheets(*previous);
        hidePopups(*this);
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
    // Keyboard in place of a shake: nobody shakes a computer on a desk.
    if (!event->isAutoRepeat() && KeyTable::shared().matches("feedback", *event)) {
        motionBegan(EventType::Motion, EventSubtype::MotionShake);
        event->accept();
        return;
    }
    QQuickView::keyPressEvent(event);
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackHost.h"
#include "Kit/Core/ViewController.h"

#include <QQuickView>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace lodestar
{

/// The application's window: a platform window that turns a shake into the feedback screen and adds nothing else.
class FeedbackWindow : public QQuickView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The process has one window, and it is made in C++.")
    Q_PROPERTY(lodestar::ViewController* rootViewController READ rootViewController NOTIFY rootViewControllerChanged)
    Q_PROPERTY(lodestar::FeedbackHost* feedbackHost READ feedbackHost CONSTANT)

public:
    enum class EventType { Touches, Motion, RemoteControl };
    enum class EventSubtype { None, MotionShake, RemoteControlPlay };

    FeedbackWindow();
    ~FeedbackWindow() override;

    /// Begins to compile the first screens in a thread, for the window that is made next. Without this call the
    /// window's making begins it. The main thread opens files meanwhile.
    static void beginCompilation();
    /// The one window of the process; the first call makes it.
    static FeedbackWindow* shared();
    /// Ends the window's drawing and forgets its screens. Call it before the application object is destroyed.
    static void tearDown();

    ViewController* rootViewController() const { return m_rootViewController.get(); }
    /// Shows the controller and lets go of the one that was shown before.
    void setRootViewController(std::shared_ptr<ViewController> controller);
    /// Presents the screens that feedback lays over the others.
    FeedbackHost* feedbackHost() { return &m_feedbackHost; }
    /// Loads the interface's root item. Call it once, before the window is shown.
    void loadInterface();

    /// A shake opens the feedback screen; other events do nothing.
    void motionBegan(EventType type, EventSubtype subtype);

Q_SIGNALS:
    void rootViewControllerChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::shared_ptr<ViewController> m_rootViewController;
    FeedbackHost m_feedbackHost;
};

} // namespace lodestar

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

    /// The one window of the process, made on first use and kept.
    static FeedbackWindow* shared();
    /// Ends the one window's drawing and forgets its screens; before the application object goes.
    static void tearDown();

    ViewController* rootViewController() const { return m_rootViewController.get(); }
    /// Shows the controller in place of what was shown, which is let go of.
    void setRootViewController(std::shared_ptr<ViewController> controller);
    /// What feedback lays over the screens.
    FeedbackHost* feedbackHost() { return &m_feedbackHost; }
    /// Loads the interface's root item. Once, before the window is shown.
    void loadInterface();

    /// A shake opens the feedback screen; every other event is ignored.
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

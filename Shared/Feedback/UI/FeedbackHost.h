// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackSetup.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <QImage>

namespace lodestar
{

/// What feedback lays over a window: the feedback screen, and the question about a crash. The screens beneath are not
/// told of it. Main thread.
///
/// While the lock is up, nothing from behind it is shown: a screen that was begun before steps aside, with its picture
/// and its note, and comes back when the lock is gone; the question about a crash waits as long. A screen that is
/// opened over the lock gets the lock's own picture; when the lock comes up anew it steps aside too, and comes back
/// when it is asked for again or the lock is gone.
class FeedbackHost : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The window has one")
    Q_PROPERTY(lodestar::ViewController* screen READ screen NOTIFY screenChanged)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(bool needed READ isNeeded NOTIFY neededChanged)

public:
    using QObject::QObject;

    void setUp(FeedbackSetup setup);
    /// Null while none is up.
    ViewController* screen() const { return m_screen.get(); }
    MenuOutlet* alert() const { return m_alert; }
    /// Something is, or was, to be shown: until then no scene is loaded for it.
    bool isNeeded() const { return m_needed; }

    /// Opens the screen on the picture; nothing while one is up or before `setUp`.
    void present(QImage picture);
    /// Turns what crashed runs left into reports, in the background, and asks what to do with those that nobody has
    /// been asked about.
    void offerCrashes();
    /// To be told of every lock that comes up, also of one after another.
    void setLocked(bool locked);
    /// Lets go of whatever is on screen, stands aside or waits to be asked about: its reports have been taken away, and
    /// whoever comes next did not begin it.
    void forget();
    bool isLocked() const { return m_locked; }

Q_SIGNALS:
    void screenChanged();
    void neededChanged();

private:
    void setScreen(std::shared_ptr<ViewController> screen);
    std::shared_ptr<ViewController> takeFromAside();
    void need();
    void askAboutCrashes();
    void answerAboutCrashes(bool kept);
    void reviewFirstCrash();

    std::shared_ptr<const FeedbackSetup> m_setup;
    std::shared_ptr<ViewController> m_screen;
    std::shared_ptr<ViewController> m_begunBefore; ///< the lock came up, and aside since
    std::shared_ptr<ViewController> m_begunOver;   ///< the lock, and aside since it came up anew
    std::vector<Report> m_crashes;                 ///< to be asked about
    MenuOutlet* m_alert = new MenuOutlet(this);
    bool m_locked = false;
    bool m_needed = false;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackSetup.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/ViewController.h"

#include <QImage>

namespace lodestar
{

/// Shows feedback over a window: the feedback screen and the question about a crash. The screens beneath are not told.
/// Main thread.
///
/// While the lock is up, nothing from behind it is shown. A feedback screen begun before the lock is put aside, with
/// its picture and its note, and comes back when the lock is gone; the question about a crash waits as long. A screen
/// opened over the lock shows the lock's own picture. When the lock comes up again, that screen is put aside, too; it
/// comes back when feedback is asked for again or when the lock is gone.
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
    /// Null while no feedback screen is up.
    ViewController* screen() const { return m_screen.get(); }
    MenuOutlet* alert() const { return m_alert; }
    /// True once anything was to be shown: until then no scene is loaded.
    bool isNeeded() const { return m_needed; }

    /// Opens the feedback screen with the picture. Does nothing while a screen is up or before `setUp`. Over the lock,
    /// a screen that was put aside there comes back instead.
    void present(QImage picture);
    /// Makes reports of the files that crashed runs left, in the background, then asks about crash reports that no
    /// person has decided about.
    void offerCrashes();
    /// Call it for every lock that comes up, even directly after another.
    void setLocked(bool locked);
    /// Drops the screen that is up, screens put aside and pending questions: their reports were deleted, and the next
    /// person did not begin them.
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
    std::shared_ptr<ViewController> m_begunBefore; ///< begun before the lock came up, and put aside since
    std::shared_ptr<ViewController> m_begunOver;   ///< begun over the lock, and put aside since the lock came up again
    std::vector<Report> m_crashes;                 ///< reports still to be asked about
    MenuOutlet* m_alert = new MenuOutlet(this);
    bool m_locked = false;
    bool m_needed = false;
};

} // namespace lodestar

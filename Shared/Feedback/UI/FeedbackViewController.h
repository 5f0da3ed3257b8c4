// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/UI/FeedbackSetup.h"
#include "Feedback/UI/Sketch.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/ViewController.h"

namespace lodestar
{

/// The feedback screen: a picture of the screen before it, to draw on, a note, and the buttons to keep or send both.
///
/// Over the passcode screen, feedback must show nothing from behind the lock: the report gets no log, and earlier
/// reports cannot be opened.
class FeedbackViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the feedback host")
    Q_PROPERTY(lodestar::Sketch* sketch READ sketch CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* noteView READ noteView CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(bool sends READ sends CONSTANT)
    Q_PROPERTY(bool locked READ isLocked CONSTANT)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

public:
    enum class Lock { Open, Locked };
    static constexpr int longestNote = 10'000;

    /// `close` removes the screen.
    FeedbackViewController(std::shared_ptr<const FeedbackSetup> setup, QImage picture, Lock lock,
                           std::function<void()> close);

    Sketch* sketch() const { return m_sketch; }
    FieldOutlet* noteView() const { return m_noteView; }
    MenuOutlet* alert() const { return m_alert; }
    /// True when this build has an address; otherwise reports are only kept.
    bool sends() const { return !m_setup->address.empty(); }
    bool isLocked() const { return m_lock == Lock::Locked; }
    bool isBusy() const { return m_busy; }

    /// Closes the screen; asks first when something would be lost.
    Q_INVOKABLE void cancel();
    /// Keeps the report. When the report is to be sent, shows its texts first.
    Q_INVOKABLE void submit();
    /// Shows all texts of the report.
    Q_INVOKABLE void showText();
    Q_INVOKABLE void showReports();

Q_SIGNALS:
    void busyChanged();

private:
    void setBusy(bool busy);
    void assemble(std::function<void(ReportBundle)> done);
    void keep(ReportBundle bundle, std::function<void(ReportBundle)> done);

    std::shared_ptr<const FeedbackSetup> m_setup;
    Lock m_lock;
    std::function<void()> m_close;
    Sketch* m_sketch;
    FieldOutlet* m_noteView = new FieldOutlet(this);
    MenuOutlet* m_alert = new MenuOutlet(this);
    bool m_busy = false;
};

} // namespace lodestar

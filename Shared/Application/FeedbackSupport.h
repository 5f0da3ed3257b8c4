// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/ShakeSensor.h"

#include <QObject>
#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

class FeedbackWindow;

/// Connects the feedback library to the application: it says where the library's files lie, who presents its screen,
/// and which sensor notices a shake. One per process, main thread; destroy it before the window.
class FeedbackSupport
{
public:
    /// Sets the folder below which everything is kept; `captureCrashes` calls this.
    static void keepIn(const QString& dataFolder);
    /// Records crashes from here on. Call it as soon as the data folder is known.
    static void captureCrashes(const QString& dataFolder, const QString& version);

    /// Part of a reset: removes all reports, what crashed runs left, the log, which names consoles, and feedback that
    /// somebody has begun. Exported files stay, since they belong to the person.
    static void forgetReports();
    /// Every password and session key that the application holds; reports must not contain them. The passcode is not
    /// included: no text contains it, reading it may have to wait for the keychain, and most passcodes are so short
    /// that the gaps left in times and numbers would reveal them. Any thread.
    static std::vector<std::string> secretsInUse();

    FeedbackSupport(FeedbackWindow& window, const QString& dataFolder, const QString& version);
    ~FeedbackSupport();
    FeedbackSupport(const FeedbackSupport&) = delete;
    FeedbackSupport& operator=(const FeedbackSupport&) = delete;

private:
    void startAfterFirstFrame(FeedbackWindow& window);

    std::unique_ptr<ShakeSensor> m_sensor;
    QObject m_untilGone; ///< ends the connection to the window, whose first frame may come after this object is gone
};

} // namespace lodestar

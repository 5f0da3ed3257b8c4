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

/// Connects the feedback library to the application: where its files lie, who presents its screen, what shakes. One a
/// process, main thread, to go before the window does.
class FeedbackSupport
{
public:
    /// The folder that everything is kept below; `captureCrashes` calls it.
    static void keepIn(const QString& dataFolder);
    /// Crashes are recorded from here on. As early as the data folder is known.
    static void captureCrashes(const QString& dataFolder, const QString& version);

    /// Takes away all reports, what crashed runs left, the log, which names consoles, and the feedback that somebody
    /// has begun: part of a reset. Files that were exported are the person's own.
    static void forgetReports();
    /// Every password and session key that the application holds, to be taken out of reports. The passcode is not among
    /// them: it is in no text to begin with, reading it may have to wait for the keychain, and most are so short that
    /// the gaps it left in times and numbers would tell it. Any thread.
    static std::vector<std::string> secretsInUse();

    FeedbackSupport(FeedbackWindow& window, const QString& dataFolder, const QString& version);
    ~FeedbackSupport();
    FeedbackSupport(const FeedbackSupport&) = delete;
    FeedbackSupport& operator=(const FeedbackSupport&) = delete;

private:
    void startAfterFirstFrame(FeedbackWindow& window);

    std::unique_ptr<ShakeSensor> m_sensor;
    QObject m_untilGone; ///< the first frame may come later
};

} // namespace lodestar

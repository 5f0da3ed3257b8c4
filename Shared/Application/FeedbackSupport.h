// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/ShakeSensor.h"

#include <QString>

#include <memory>

namespace lodestar
{

class FeedbackWindow;

/// Connects the feedback library to the application: where its files lie, who presents its screen, what shakes. One a
/// process, main thread, to go before the window does.
class FeedbackSupport
{
public:
    /// Crashes are recorded from here on. As early as the data folder is known.
    static void captureCrashes(const QString& dataFolder, const QString& version);

    FeedbackSupport(FeedbackWindow& window, const QString& dataFolder, const QString& version);
    ~FeedbackSupport();
    FeedbackSupport(const FeedbackSupport&) = delete;
    FeedbackSupport& operator=(const FeedbackSupport&) = delete;

private:
    void startAfterFirstFrame(FeedbackWindow& window);

    std::unique_ptr<ShakeSensor> m_sensor;
};

} // namespace lodestar

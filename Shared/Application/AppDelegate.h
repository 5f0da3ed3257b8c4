// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <memory>
#include <string>

namespace lodestar
{

class FeedbackWindow;

/// Start-up, the passcode gate and the end of the process. One per process, main thread.
class AppDelegate
{
public:
    /// Runs the start-up sequence. Ends the process when the store cannot be opened.
    bool didFinishLaunchingWithOptions();
    /// Puts a fresh passcode screen in front of whatever is shown, when a passcode is required.
    void applicationDidBecomeActive();
    /// These three neither save nor lock anything.
    void applicationWillResignActive() {}
    void applicationDidEnterBackground() {}
    void applicationWillEnterForeground() {}
    void applicationWillTerminate();

    /// Always the process's one feedback window, which the first call makes; never the window that `setWindow` stored.
    FeedbackWindow* window() const;
    /// Stores into a member that nothing reads. This is meant: the feedback window always hosts the interface.
    void setWindow(FeedbackWindow* window) { m_window = window; }

    /// The rest of the application reaches the store stack through these four functions.
    const std::string& applicationDocumentsDirectory() const;
    ManagedObjectModel managedObjectModel() const;
    ObjectContext& managedObjectContext() const;
    void saveContext() const;

    /// Puts the storyboard's initial screen into the window.
    void showInitialViewController();

private:
    FeedbackWindow* m_window = nullptr;
};

} // namespace lodestar

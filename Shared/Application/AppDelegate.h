// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <memory>
#include <string>

namespace lodestar
{

class FeedbackWindow;

/// Start-up, the passcode gate and the end of the process. One a process, main thread.
class AppDelegate
{
public:
    /// The start-up sequence; a store that cannot be opened ends the process here.
    bool didFinishLaunchingWithOptions();
    /// Puts a fresh passcode screen in front of whatever is shown, when a passcode is required.
    void applicationDidBecomeActive();
    /// Nothing is saved and nothing is locked at these three.
    void applicationWillResignActive() {}
    void applicationDidEnterBackground() {}
    void applicationWillEnterForeground() {}
    void applicationWillTerminate();

    /// Always the one feedback window of the process, made on first use; never what `setWindow` stored.
    FeedbackWindow* window() const;
    /// Stores into a member that nothing reads. Meant: the interface is always hosted in the feedback window.
    void setWindow(FeedbackWindow* window) { m_window = window; }

    /// The store stack, which this class owns towards the rest of the application.
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

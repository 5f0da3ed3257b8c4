// SPDX-License-Identifier: Apache-2.0
#include "Application/AppDelegate.h"

#include "Application/FeedbackWindow.h"
#include "Application/Model/Setting.h"
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/History.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Platform/UserDefaults.h"
#include "Views/Common/Scenes.h"

#include <exception>

namespace lodestar
{
namespace
{

// The feedback service issued this key for the application. The key names the application and is no secret.
constexpr std::string_view feedbackApplicationKey = "lodestar-mobile";
// The feedback library's mode in which the device composes reports.
constexpr int feedbackMode = 2;

} // namespace

bool AppDelegate::didFinishLaunchingWithOptions()
{
    RESTHandler::sharedInstance();
    openHistory(applicationDocumentsDirectory());
    TabBarAppearance::appearance().selectedImageTintColor = UIColor::selectedBlue();
    VireoLogger::settings().reportOnShake = true;
    VireoLogger::settings().mode = feedbackMode;
    VireoLogger::startSession(feedbackApplicationKey);
    std::set_terminate(&VireoLogger::uncaughtExceptionHandler);
    return true;
}

void AppDelegate::applicationDidBecomeActive()
{
    if (UserDefaults::standard().boolForKey(Setting::requirePassword)) {
        showInitialViewController();
    }
}

void AppDelegate::applicationWillTerminate()
{
    saveContext();
    History::shared().close();
}

FeedbackWindow* AppDelegate::window() const
{
    return FeedbackWindow::shared();
}

const std::string& AppDelegate::applicationDocumentsDirectory() const
{
    return StoreStack::shared().applicationDocumentsDirectory();
}

ManagedObjectModel AppDelegate::managedObjectModel() const
{
    return StoreStack::managedObjectModel();
}

ObjectContext& AppDelegate::managedObjectContext() const
{
    return StoreStack::shared().managedObjectContext();
}

void AppDelegate::saveContext() const
{
    StoreStack::shared().saveContext();
}

void AppDelegate::showInitialViewController()
{
    window()->setRootViewController(Storyboard::main().instantiateViewController(Scenes::loginViewController));
}

} // namespace lodestar

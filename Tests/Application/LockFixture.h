// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/LoginViewController.h"
#include "Application/MainStoryboard.h"
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/Storyboard.h"
#include "Platform/Error.h"
#include "Platform/Keychain.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/UserDefaults.h"
#include "Tests/ScratchFolder.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace lodestar::lock
{

/// A keychain in memory that fails when it is told to.
class FaultyKeychain final : public Keychain
{
public:
    Result<std::string> password(const std::string& service, const std::string& account) override
    {
        if (readsFail) {
            return Error{"Keychain", -1, "no answer", {}, nullptr};
        }
        return items[{service, account}];
    }
    Result<void> setPassword(const std::string& password, const std::string& service,
                             const std::string& account) override
    {
        if (onWrite) {
            onWrite();
        }
        if (writesFail) {
            return Error{"Keychain", -1, "no answer", {}, nullptr};
        }
        items[{service, account}] = password;
        return {};
    }

    bool readsFail = false;
    bool writesFail = false;
    std::function<void()> onWrite;
    std::map<std::pair<std::string, std::string>, std::string> items;
};

/// The application's screens over an empty store, empty defaults and that keychain. What would come into the window is
/// kept as the root, and every logged line with it.
class LockTest : public ::testing::Test
{
protected:
    LockTest()
    {
        StoreStack::shared().close();
        StoreStack::shared().setApplicationDocumentsDirectory(folder.path());
        UserDefaults::install(nullptr);
        auto made = std::make_unique<FaultyKeychain>();
        keychain = made.get();
        Keychain::install(std::move(made));
        Storyboard::main() = Storyboard();
        registerMainStoryboard([this](std::shared_ptr<ViewController> shown) { root = std::move(shown); });
        RESTHandler::sharedInstance().setCorvelList({});
        listener = VireoLogger::addListener([this](const VireoLogger::Entry& entry) {
            const std::lock_guard lock(mutex);
            log += std::string(entry.message) + "\n";
        });
    }
    ~LockTest() override
    {
        listener.reset();
        root.reset();
        MainQueue::shared().runUntil([] { return true; }, std::chrono::seconds(1));
        RESTHandler::sharedInstance().setCorvelList({});
        StoreStack::shared().close();
        UserDefaults::install(nullptr);
        Keychain::install(nullptr);
    }

    std::string& passcode() const { return keychain->items[{"Login", "Admin"}]; }
    static void require(bool required = true)
    {
        UserDefaults::standard().setBool(true, "initialLoad");
        UserDefaults::standard().setBool(true, "showedPreview");
        UserDefaults::standard().setBool(required, "requirePassword");
    }
    static bool isRequired() { return UserDefaults::standard().boolForKey("requirePassword"); }
    std::string logged()
    {
        const std::lock_guard lock(mutex);
        return log;
    }

    const ScratchFolder folder;
    FaultyKeychain* keychain = nullptr;
    std::shared_ptr<ViewController> root;

private:
    std::mutex mutex;
    std::string log;
    std::shared_ptr<void> listener;
};

} // namespace lodestar::lock

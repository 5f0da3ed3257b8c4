// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/KeptState.h"
#include "Application/LoginViewController.h"
#include "Application/MainStoryboard.h"
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/Registry.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/Error.h"
#include "Platform/Keychain.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/UserDefaults.h"
#include "Tests/Support/ScratchFolder.h"
#include "Views/Common/Scenes.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <thread>
#include <utility>
#include <vector>

namespace lodestar::lock
{

/// A keychain in memory that fails when it is told to, or answers later.
class FaultyKeychain final : public Keychain
{
public:
    void readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer) override
    {
        carryOut([=, this] {
            const auto failure = readFailure ? readFailure : failureFor(prompt);
            answer(failure ? Result<std::string>(error(failure)) : Result<std::string>(items[{service, account}]));
        });
    }
    void writePassword(const std::string& password, const std::string& service, const std::string& account,
                       Prompt prompt, Written answer) override
    {
        carryOut([=, this] {
            if (onWrite) {
                onWrite();
            }
            if (const auto failure = writeFailure ? writeFailure : failureFor(prompt)) {
                answer(error(failure));
                return;
            }
            items[{service, account}] = password;
            answer({});
        });
    }
    /// Answers what was asked while it was holding.
    void release()
    {
        isHolding = false;
        for (const auto& request : std::exchange(held, {})) {
            request();
        }
    }

    int readFailure = 0; ///< one of `Failure`; 0 for none
    int writeFailure = 0;
    bool isLocked = false; ///< until somebody may be asked
    bool isHolding = false;
    std::function<void()> onWrite;
    std::map<std::pair<std::string, std::string>, std::string> items;

private:
    static Error error(int code) { return {"Keychain", code, "no answer", {}, nullptr}; }
    int failureFor(Prompt prompt)
    {
        isLocked = isLocked && prompt == Prompt::No;
        return isLocked ? locked : 0;
    }
    void carryOut(std::function<void()> request)
    {
        if (isHolding) {
            held.push_back(std::move(request));
        } else {
            request();
        }
    }

    std::vector<std::function<void()>> held;
};

/// The application's screens over an empty store, empty defaults and that keychain. What would come into the window is
/// kept as the root.
class LockTest : public ::testing::Test
{
protected:
    LockTest()
    {
        StoreStack::shared().close();
        StoreStack::shared().setApplicationDocumentsDirectory(folder.path());
        UserDefaults::install(nullptr);
        KeptState::openFolder(folder.path());
        auto made = std::make_unique<FaultyKeychain>();
        keychain = made.get();
        Keychain::install(std::move(made));
        Storyboard::main() = Storyboard();
        registerMainStoryboard([this](std::shared_ptr<ViewController> shown) { root = std::move(shown); });
        RESTHandler::sharedInstance().setCorvelList({});
        VireoLogger::openLogFolder(folder.file("Logs"));
    }
    ~LockTest() override
    {
        passcodeScreen.reset();
        root.reset();
        MainQueue::shared().runUntil([] { return true; }, std::chrono::seconds(1));
        RESTHandler::sharedInstance().setCorvelList({});
        StoreStack::shared().close();
        UserDefaults::install(nullptr);
        Keychain::install(nullptr);
        KeptState::openFolder({});
        VireoLogger::openLogFolder("/dev/null/nowhere");
    }

    std::string& passcode() const { return keychain->items[{"Login", "Admin"}]; }
    static void require(bool required = true)
    {
        UserDefaults::standard().setBool(true, "initialLoad");
        UserDefaults::standard().setBool(true, "showedPreview");
        UserDefaults::standard().setBool(required, "requirePassword");
    }
    LoginViewController& showLogin()
    {
        passcodeScreen = Storyboard::main().instantiate<LoginViewController>(Scenes::loginViewController);
        root = passcodeScreen;
        passcodeScreen->beginAppearance();
        return *passcodeScreen;
    }
    void logInWith(const char* text) const
    {
        passcodeScreen->passwordTextField()->setText(QString::fromUtf8(text));
        passcodeScreen->performLogin();
    }
    static CorvelRef addConsole(const std::string& address, const std::string& user, const std::string& password)
    {
        const CorvelRef corvel = insertNewCorvel();
        corvel->setDemo(false);
        corvel->setName(address);
        corvel->setAddress(address);
        corvel->setUsername(user);
        corvel->setPassword(password);
        return corvel;
    }
    /// Whether the main interface was shown in the passcode screen's place.
    bool isUnlocked() const { return dynamic_cast<TabBarController*>(root.get()) != nullptr; }
    static bool isRequired() { return UserDefaults::standard().boolForKey("requirePassword"); }
    /// What is kept as the next run finds it.
    void reopenKeptState() const
    {
        KeptState::openFolder(folder.path());
        // Qt takes a file of the same size and millisecond for the file that it has read, so the next one gets another.
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    std::string logged() const
    {
        VireoLogger::flush();
        return folder.read("Logs/lodestar.log");
    }

    const ScratchFolder folder;
    FaultyKeychain* keychain = nullptr;
    std::shared_ptr<ViewController> root;
    std::shared_ptr<LoginViewController> passcodeScreen; ///< shown last, and kept when another screen is shown
};

} // namespace lodestar::lock

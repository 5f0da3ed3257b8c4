// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/FileUserDefaults.h"
#include "Tests/Application/LockFixture.h"

namespace lodestar::lock
{

/// Everything that a reset has to remove, in the files that the application keeps it in.
class ResetFixture : public LockTest
{
protected:
    void openDefaults() const
    {
        UserDefaults::install(std::make_unique<FileUserDefaults>(folder.file("Lodestar.defaults")));
    }
    /// Nobody listens at the consoles' addresses.
    void fill(int consoles) const
    {
        for (int index = 0; index < consoles; ++index) {
            const std::string number = std::to_string(index);
            const std::string address = "127.0.99." + number;
            RESTHandler::sharedInstance().addCorvel(addConsole(address, "overseer", "secret-password-" + number));
            UserDefaults::standard().setString("secret-key-" + number, address);
        }
        saveIgnoringErrors();
        passcode() = "secret-passcode";
        KeptState::shared().setString("0 0 1 1", "window");
        require();
        ASSERT_TRUE(UserDefaults::standard().synchronize());
    }
    static void runMainQueue(int milliseconds)
    {
        MainQueue::shared().runUntil([] { return false; }, std::chrono::milliseconds(milliseconds));
    }
    /// The names of the files that hold the text.
    std::vector<std::string> filesWith(const std::string& text) const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
            const std::string name = std::filesystem::relative(entry.path(), folder.path());
            if (entry.is_regular_file() && folder.read(name).find(text) != std::string::npos) {
                names.push_back(name);
            }
        }
        return names;
    }
};

} // namespace lodestar::lock

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Keychain.h"
#include "Platform/Queues/MainQueue.h"

#include <optional>
#include <string>

namespace lodestar::test
{

inline Result<std::string> readPassword(const std::string& service = "Login", const std::string& account = "Admin",
                                        Keychain::Prompt prompt = Keychain::Prompt::Allowed)
{
    std::optional<Result<std::string>> answer;
    Keychain::standard().readPassword(service, account, prompt, [&](const auto& told) { answer = told; });
    MainQueue::shared().runUntil([&] { return answer.has_value(); }, std::chrono::seconds(60));
    return *answer;
}

inline Result<void> writePassword(const std::string& password, const std::string& service = "Login",
                                  const std::string& account = "Admin",
                                  Keychain::Prompt prompt = Keychain::Prompt::Allowed)
{
    std::optional<Result<void>> answer;
    Keychain::standard().writePassword(password, service, account, prompt, [&](const auto& told) { answer = told; });
    MainQueue::shared().runUntil([&] { return answer.has_value(); }, std::chrono::seconds(60));
    return *answer;
}

} // namespace lodestar::test

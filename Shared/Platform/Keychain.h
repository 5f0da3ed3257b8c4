// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <memory>
#include <string>

namespace lodestar
{

/// Generic passwords by service and account, kept by the system. Main thread. Calls may wait for the system's service,
/// never longer than the implementation's deadline.
class Keychain
{
public:
    virtual ~Keychain() = default;
    /// The empty string when there is no such item.
    virtual Result<std::string> password(const std::string& service, const std::string& account) = 0;
    /// Creates or replaces the item. A failed write leaves the item as it was and is never to be shown as saved.
    virtual Result<void> setPassword(const std::string& password, const std::string& service,
                                     const std::string& account) = 0;

    /// The process's keychain: in memory until `install` puts the system's in its place.
    static Keychain& standard();
    static void install(std::unique_ptr<Keychain> keychain);
};

} // namespace lodestar

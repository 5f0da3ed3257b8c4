// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// Generic passwords by service and account, kept by the system. Main thread. No call blocks: each answer comes once,
/// on the main thread, perhaps before the call returns. Calls are carried out in the order in which they were made. An
/// answer comes by the implementation's deadline; time in which the system asks the person something does not count.
class Keychain
{
public:
    /// Says whether the system may ask the person for the keychain's password. With `No`, a call that needs the
    /// password fails as `locked`, and no dialog takes pointer and keyboard.
    enum class Prompt { No, Allowed };
    /// Codes of the domain "Keychain" that every implementation uses. The system's own codes are greater than 0.
    enum Failure {
        timedOut = -1, ///< no answer by the deadline
        notAText = -2, ///< the password is one that the system cannot keep
        locked = -3,   ///< a keychain exists, but nobody has unlocked it
        absent = -4,   ///< no keychain is running
    };
    using Read = std::function<void(Result<std::string>)>;
    using Written = std::function<void(Result<void>)>;

    virtual ~Keychain() = default;
    /// Answers with the empty string when there is no such item.
    virtual void readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer) = 0;
    /// Creates or replaces the item. An empty password creates no item where there is none. A failed write leaves the
    /// item as it was; never show a failed write as saved.
    virtual void writePassword(const std::string& password, const std::string& service, const std::string& account,
                               Prompt prompt, Written answer) = 0;

    /// The process's keychain: one in memory until `install` puts the system's keychain in its place.
    static Keychain& standard();
    static void install(std::unique_ptr<Keychain> keychain);
};

} // namespace lodestar

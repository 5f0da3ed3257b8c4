// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// Generic passwords by service and account, kept by the system. Main thread. No call waits: its answer comes on the
/// main thread, once, perhaps before the call returns. Calls are carried out in the order in which they were made. An
/// answer comes by the implementation's deadline, but for the time in which the system asks the person something.
class Keychain
{
public:
    /// Whether the system may ask the person for its own password. With `No` what would need that fails as `locked`,
    /// and nothing comes up that takes pointer and keyboard.
    enum class Prompt { No, Allowed };
    /// Codes of the domain "Keychain" that every implementation uses; those of the system are greater than 0.
    enum Failure {
        timedOut = -1, ///< no answer by the deadline
        notAText = -2, ///< a password that the system cannot keep
        locked = -3,   ///< there is a keychain, but nobody has unlocked it
        absent = -4,   ///< no keychain is running
    };
    using Read = std::function<void(Result<std::string>)>;
    using Written = std::function<void(Result<void>)>;

    virtual ~Keychain() = default;
    /// The empty string when there is no such item.
    virtual void readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer) = 0;
    /// Creates or replaces the item; the empty password makes none where there is none. A failed write leaves the item
    /// as it was and is never to be shown as saved.
    virtual void writePassword(const std::string& password, const std::string& service, const std::string& account,
                               Prompt prompt, Written answer) = 0;

    /// The process's keychain: in memory until `install` puts the system's in its place.
    static Keychain& standard();
    static void install(std::unique_ptr<Keychain> keychain);
};

} // namespace lodestar

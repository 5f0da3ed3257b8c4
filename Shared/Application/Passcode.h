// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Keychain.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <optional>
#include <string>

namespace lodestar
{

/// The application's passcode, which the keychain keeps as it was typed. The empty text stands for none. Main thread;
/// nothing waits for the keychain: its answers come on the main thread, perhaps before the call returns, in the order
/// of the calls.
class Passcode
{
    Q_DECLARE_TR_FUNCTIONS(Passcode)

public:
    using Prompt = Keychain::Prompt;
    /// A keychain that cannot be read counts as one without a passcode; `failure` then tells why, and so does the log.
    using Read = std::function<void(const std::string& passcode, const std::optional<Error>& failure)>;

    /// What is asked again while the answer is still to come shares that answer: one prompt, not two.
    static void read(Prompt prompt, Read answer);
    /// A failure is logged, too.
    static void store(const std::string& passcode, Keychain::Written answer);
    /// Empties whatever the keychain holds, without asking anybody. Where that cannot be done now what is there counts
    /// as none from now on, in later runs too, and is emptied as soon as the keychain allows it.
    static void discard();

    /// Whether there was a passcode when the settings or the passcode sheet last loaded; one for the process. Saving
    /// does not change it: the next of these loads does. That is meant.
    static bool exists();
    static void recomputeExists(Prompt prompt);
    /// Why the last of these loads could not tell.
    static const std::optional<Error>& existsFailure();
    /// Runs the function at once, or when the load under way has its answer.
    static void whenExistsIsKnown(std::function<void()> function);

    /// The failure in a person's words, a sentence without its stop.
    static QString words(const Error& failure);

    /// The lock was switched off because the keychain could not be read. Kept until `forgetLockOff`, over the end of
    /// the process.
    static void rememberLockOff(const Error& failure);
    static void forgetLockOff();
    /// What to tell a person about it: empty for nothing.
    static QString lockOffWords();
};

} // namespace lodestar

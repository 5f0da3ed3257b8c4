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

/// The application's passcode, which the keychain keeps as it was typed. The empty text means that there is none. Main
/// thread, which never waits for the keychain: answers come on the main thread in the order of the calls, perhaps
/// before the call returns.
class Passcode
{
    Q_DECLARE_TR_FUNCTIONS(Passcode)

public:
    using Prompt = Keychain::Prompt;
    /// When the keychain cannot be read, the passcode is empty and `failure` says why; the failure is logged, too.
    using Read = std::function<void(const std::string& passcode, const std::optional<Error>& failure)>;

    /// Reads of one kind share an answer that is still to come, so that the person sees one prompt, not two.
    static void read(Prompt prompt, Read answer);
    /// Stores the passcode; the empty text removes it. A failure is logged.
    static void store(const std::string& passcode, Keychain::Written answer);
    /// Removes the passcode without a prompt. If the keychain cannot be emptied now, its passcode counts as none from
    /// now on, in later runs too, and is removed as soon as the keychain allows it.
    static void discard();

    /// Whether a passcode existed when the settings or the passcode sheet last loaded; one value per process. Saving a
    /// passcode does not change it, only the next of these loads does. This is meant.
    static bool exists();
    static void recomputeExists(Prompt prompt);
    /// Why the last of these loads could not read the keychain; empty when it could.
    static const std::optional<Error>& existsFailure();
    /// Calls the function at once, or when the load under way has its answer.
    static void whenExistsIsKnown(std::function<void()> function);

    /// The failure in words for a person: a sentence without its full stop.
    static QString words(const Error& failure);

    /// Notes that the lock was switched off because the keychain could not be read. Kept, across restarts, until
    /// `forgetLockOff`.
    static void rememberLockOff(const Error& failure);
    static void forgetLockOff();
    /// The note in words for a person; empty when there is none.
    static QString lockOffWords();
};

} // namespace lodestar

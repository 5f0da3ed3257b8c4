// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <string>

namespace lodestar
{

/// The application's passcode, which the keychain keeps as it was typed. The empty text stands for none. Main thread;
/// calls wait for the keychain, never longer than its deadline.
class Passcode
{
public:
    /// A keychain that cannot be read counts as one without a passcode, and the failure is logged.
    static std::string stored();
    /// A failure is logged, too.
    static Result<void> store(const std::string& passcode);

    /// Whether there was a passcode when the settings or the passcode sheet last loaded; one for the process. Saving
    /// does not change it: the next of these loads does. That is meant.
    static bool exists();
    static void recomputeExists();
};

} // namespace lodestar

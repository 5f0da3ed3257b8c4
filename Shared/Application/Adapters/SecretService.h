// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <chrono>

namespace lodestar
{

/// What stands between the application and an item of the desktop's secret service.
enum class SecretAccess {
    Free,
    NoItem,    ///< nothing is kept under that name
    Locked,    ///< the service would ask the person first
    NoService, ///< nothing answers to that name
    Unknown,   ///< the service does not say, or is not the one that keeps our items
};

struct SecretQuestion {
    QString service;
    QString account;
    bool writes = false;    ///< a text, which needs a place to write to; an empty one needs an item only
    bool mayPrompt = false; ///< then a session bus may be started, too, where there is none
};

/// Asks the service without bringing up a prompt. Waits for the service, about as long as stated for each of at most
/// three calls: never on the main thread.
SecretAccess secretAccess(const SecretQuestion& question, std::chrono::milliseconds limit);

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <chrono>

namespace lodestar
{

/// What keeps the application from an item of the desktop's secret service, if anything does.
enum class SecretAccess {
    Free,
    NoItem,    ///< nothing is kept under that name
    Locked,    ///< the service would first ask the person to unlock it
    NoService, ///< there is no bus, or no secret service on it
    Unknown,   ///< the service does not say, or does not keep our items
};

struct SecretQuestion {
    QString service;
    QString account;
    bool writes = false;    ///< true for storing a text, which needs a collection; false also for emptying an item
    bool mayPrompt = false; ///< whether the service may ask the person; also lets an absent session bus be started
};

/// Asks the service how it would treat the request; this brings up no prompt. Makes at most three calls and waits up to
/// `limit` or a little longer for each, so never call it on the main thread.
SecretAccess secretAccess(const SecretQuestion& question, std::chrono::milliseconds limit);

} // namespace lodestar

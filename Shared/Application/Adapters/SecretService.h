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
    NoService, ///< there is no bus, or no secret service on it
    Unknown,   ///< the service does not say, or does not keep our items
};

struct SecretQuestion {
    QString service;
    QString account;
    bool writes = false; ///< whether a text is written; emptying an item, which needs no collection, is no such write
    bool mayPrompt = false; ///< whether the service may ask the person, and a session bus be started if absent
};

/// Asks the service how it would treat the request; this brings up no prompt. Makes at most three calls and waits up to
/// `limit` or a little longer for each, so never call it on the main thread.
SecretAccess secretAccess(const SecretQuestion& question, std::chrono::milliseconds limit);

} // namespace lodestar

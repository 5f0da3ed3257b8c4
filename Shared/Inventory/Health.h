// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// The health of an object or console. Each kind of record has a function of its own that tells it from the words that
/// the console uses.
enum class Health {
    Good,
    Idle,  ///< does nothing, and no error is known
    Alert, ///< needs attention
    Error,
    Offline ///< does not answer
};

} // namespace lodestar

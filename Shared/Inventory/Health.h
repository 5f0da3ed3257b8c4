// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// How something is, as far as its console tells. Each kind of record judges by words of its own; the function stands
/// beside the kind.
enum class Health {
    Good,
    Idle,  ///< does nothing, and nothing is known to be wrong with it
    Alert, ///< calls for attention
    Error,
    Offline ///< does not answer
};

} // namespace lodestar

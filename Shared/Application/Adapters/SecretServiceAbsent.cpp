// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/SecretService.h"

namespace lodestar
{

// Systems without a secret service have other keychains, which the keychain's library knows.
SecretAccess secretAccess(const SecretQuestion& /*question*/, std::chrono::milliseconds /*limit*/)
{
    return SecretAccess::Unknown;
}

} // namespace lodestar

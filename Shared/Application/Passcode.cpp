// SPDX-License-Identifier: Apache-2.0
#include "Application/Passcode.h"

#include "Feedback/VireoLogger.h"
#include "Platform/Error.h"
#include "Platform/Keychain.h"

namespace lodestar
{
namespace
{

constexpr auto fileName = "Shared/Application/Passcode";
constexpr auto service = "Login";
constexpr auto account = "Admin";

bool& existsFlag()
{
    static bool exists = false;
    return exists;
}

} // namespace

std::string Passcode::stored()
{
    Result<std::string> passcode = Keychain::standard().password(service, account);
    if (!passcode) {
        LODESTAR_LOG(fileName, "+[Passcode stored]", "The passcode cannot be read: {}", description(passcode.error()));
        return {};
    }
    return std::move(passcode).value();
}

Result<void> Passcode::store(const std::string& passcode)
{
    Result<void> written = Keychain::standard().setPassword(passcode, service, account);
    if (!written) {
        LODESTAR_LOG(fileName, "+[Passcode store:]", "The passcode cannot be written: {}",
                     description(written.error()));
    }
    return written;
}

bool Passcode::exists()
{
    return existsFlag();
}

void Passcode::recomputeExists()
{
    existsFlag() = !stored().empty();
}

} // namespace lodestar

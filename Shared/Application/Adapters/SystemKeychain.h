// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Keychain.h"

#include <chrono>
#include <memory>

namespace lodestar
{

/// The desktop's secret service. The service is asked from a thread of its own, and the caller waits without running
/// events, so that nothing else happens on the main thread meanwhile.
///
/// A call that the service does not answer by the deadline fails; while it still owes that answer, further calls fail
/// at once rather than each wait the deadline out. A write that failed so may yet be carried out when the service wakes
/// up.
///
/// Errors are of the domain "Keychain", with the codes of the service's library, `timedOut` and `notAText`.
class SystemKeychain final : public Keychain
{
public:
    static constexpr int timedOut = -1;
    /// A password with a null character in it, which the service cannot keep.
    static constexpr int notAText = -2;

    explicit SystemKeychain(std::chrono::milliseconds deadline = std::chrono::seconds(3));
    ~SystemKeychain() override;
    SystemKeychain(const SystemKeychain&) = delete;
    SystemKeychain& operator=(const SystemKeychain&) = delete;

    Result<std::string> password(const std::string& service, const std::string& account) override;
    Result<void> setPassword(const std::string& password, const std::string& service,
                             const std::string& account) override;

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Keychain.h"

#include <chrono>
#include <memory>

namespace lodestar
{

/// The desktop's secret service. Everything that may wait for it is done on a thread of its own, one request after the
/// other.
///
/// A request that the service does not answer by the deadline fails, unless the service is asking the person meanwhile:
/// that takes as long as it takes, and later requests wait. While the service still owes an answer that was given up,
/// further requests fail at once rather than each wait the deadline out. A write that was given up may yet be carried
/// out when the service wakes up.
///
/// Before anything is asked that could bring up a prompt the service is asked whether the item exists and is unlocked,
/// which brings up none.
class SystemKeychain final : public Keychain
{
public:
    enum class Begin { AtOnce, WhenTold };

    explicit SystemKeychain(std::chrono::milliseconds deadline = std::chrono::seconds(3), Begin begin = Begin::AtOnce);
    /// Requests that are under way are not answered.
    ~SystemKeychain() override;
    SystemKeychain(const SystemKeychain&) = delete;
    SystemKeychain& operator=(const SystemKeychain&) = delete;

    /// What was asked before waits for this: a program asks once its first frame is drawn.
    void begin();
    /// Whether the service still owes an answer that was given up. The bus's library then holds up a process that ends
    /// in the ordinary way, for up to half a minute.
    bool owesAnswer() const;

    void readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer) override;
    void writePassword(const std::string& password, const std::string& service, const std::string& account,
                       Prompt prompt, Written answer) override;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar

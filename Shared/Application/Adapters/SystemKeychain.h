// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Keychain.h"

#include <chrono>
#include <memory>

namespace lodestar
{

/// The desktop's secret service. A thread of its own does everything that may wait for the service, one request after
/// the other.
///
/// A request fails when the service does not answer by the deadline. While the service is asking the person there is no
/// deadline, and later requests wait. While the service still owes an answer to a request that was given up, further
/// requests fail at once instead of each waiting for the deadline. A write that was given up may still be carried out
/// when the service wakes up.
///
/// Before any request that could bring up a prompt, the service is asked whether the item exists and is unlocked; that
/// brings up no prompt.
class SystemKeychain final : public Keychain
{
public:
    explicit SystemKeychain(std::chrono::milliseconds deadline = std::chrono::seconds(3));
    /// Leaves requests that are under way unanswered.
    ~SystemKeychain() override;
    SystemKeychain(const SystemKeychain&) = delete;
    SystemKeychain& operator=(const SystemKeychain&) = delete;

    /// Sends the requests that were made so far; until then they wait. A program calls this once its first frame is
    /// drawn.
    void begin();
    /// Whether the service still owes an answer to a request that was given up. If so, the bus's library holds up a
    /// process that ends in the ordinary way, by up to half a minute.
    bool owesAnswer() const;

    void readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer) override;
    void writePassword(const std::string& password, const std::string& service, const std::string& account,
                       Prompt prompt, Written answer) override;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace lodestar

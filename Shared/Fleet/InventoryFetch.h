// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Controllers/REST/RXPromise.h"
#include "Controllers/REST/SessionKey.h"
#include "Fleet/Attempt.h"
#include "Platform/URLLoading/URLRequest.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace lodestar
{

/// One fetch of a console's six feeds, and the reading that it makes. Publishes nothing by itself. Used once; made with
/// `std::make_shared` on the main thread. The promise keeps it alive.
class InventoryFetch : public std::enable_shared_from_this<InventoryFetch>
{
public:
    explicit InventoryFetch(CorvelRef corvel);

    /// Logs on, marks the record online, fetches the feeds into it and counts them. Rejected when the logon fails. When
    /// the promise settles, the functions below have their answers. `loggedOn` is called on a worker.
    RXPromise<std::string> start(Urgency urgency, std::function<void()> loggedOn = nullptr,
                                 std::chrono::seconds feedTimeout = patientFeedTimeout);
    /// Asks nothing more of the console once it has answered what was asked already. Any thread.
    void stop() { m_isStopped = true; }

    const CorvelRef& corvel() const { return m_corvel; }
    const std::string& address() const { return m_attempt.address; }
    const Reading& reading() const { return m_reading; }
    /// Accepted by the console; none when the logon failed.
    const SessionKey& sessionKey() const { return m_sessionKey; }

    /// Makes the reading that of the record, which may be another one than was fetched into, and has the certificates
    /// examined. Main thread.
    void publishAs(const CorvelRef& corvel) const;
    /// Adds what was published to the history. Main thread.
    void addToHistoryAs(const CorvelRef& corvel) const;

private:
    RXPromise<std::string> fetch(const Asking& asking, std::function<void()> loggedOn);
    void judge(std::optional<Error> rejection);

    const CorvelRef m_corvel;
    const std::shared_ptr<ExchangeLog> m_log = std::make_shared<ExchangeLog>();
    std::atomic<bool> m_isStopped = false;
    SessionKey m_sessionKey;
    Attempt m_attempt;
    Reading m_reading;
};

} // namespace lodestar

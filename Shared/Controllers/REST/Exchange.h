// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"
#include "Platform/Result.h"
#include "Platform/URLLoading/TransferRecord.h"
#include "Platform/URLLoading/URLRequest.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// One request of the console client and what came of it. A value.
struct Exchange {
    enum class Kind { SessionCheck, Logon, Feed };

    Kind kind = Kind::Feed;
    std::string type; ///< of a feed
    TransferRecord transfer;
    int status = 0;
    std::size_t bytes = 0; ///< of the body, unpacked
    std::size_t entries = 0;
    /// Why the request brought nothing. Unlike the promises' errors it tells one status from another.
    std::optional<Error> error;
};

/// What the console client did for one caller. Thread-safe.
class ExchangeLog
{
public:
    void add(Exchange exchange);
    /// In the order in which they ended.
    std::vector<Exchange> take();

private:
    std::mutex m_mutex;
    std::vector<Exchange> m_exchanges;
};

/// A large console needs minutes for its inventory.
inline constexpr std::chrono::seconds patientFeedTimeout{500};

/// On whose behalf the client is asked, and who wants to know of its exchanges. The log may be null.
struct Asking {
    Asking(Urgency who = Urgency::Person, std::shared_ptr<ExchangeLog> told = nullptr,
           std::chrono::seconds timeoutOfFeeds = patientFeedTimeout)
        : urgency(who), log(std::move(told)), feedTimeout(timeoutOfFeeds)
    {
    }

    Urgency urgency;
    std::shared_ptr<ExchangeLog> log;
    std::chrono::seconds feedTimeout; ///< of each feed's request
};

/// A request's entry in the log until its answer has been read. Does nothing without a log. Copies are the same entry.
class ExchangeEntry
{
public:
    ExchangeEntry(std::shared_ptr<ExchangeLog> log, Exchange::Kind kind, std::string_view type, URLRequest& request);

    /// Call one of them once, before anybody learns of the outcome. `misread` is why a good answer was of no use.
    void close(const Result<URLLoad>& load, std::optional<Error> misread = std::nullopt, std::size_t entries = 0) const;
    void close(int status, std::size_t bytes, std::optional<Error> error, std::size_t entries = 0) const;
    bool isWanted() const { return m_log != nullptr; }

private:
    std::shared_ptr<ExchangeLog> m_log;
    std::shared_ptr<Exchange> m_exchange; ///< null without a log
};

/// Domain of errors that are a status other than 200; the code is the status.
inline constexpr std::string_view statusErrorDomain = "HTTPStatus";
Error statusError(int status);
/// Domain of the one error that a console accepted a logon and gave no session key.
inline constexpr std::string_view sessionKeyErrorDomain = "SessionKey";
Error missingKeyError();

} // namespace lodestar

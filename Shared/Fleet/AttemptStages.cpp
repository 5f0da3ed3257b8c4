// SPDX-License-Identifier: Apache-2.0
#include "Fleet/AttemptStages.h"

#include "Platform/URLLoading/URLError.h"

#include <algorithm>
#include <arpa/inet.h>
#include <optional>

namespace lodestar
{

namespace
{

using Duration = std::chrono::microseconds;
using Connection = TransferRecord::Connection;

constexpr std::size_t connectionSteps = 3; ///< name, connect, TLS

bool isNumeric(std::string_view address)
{
    if (address.size() > 2 && address.front() == '[' && address.back() == ']') {
        address = address.substr(1, address.size() - 2);
    }
    const std::string host(address);
    std::array<unsigned char, sizeof(in6_addr)> bytes{};
    return inet_pton(AF_INET, host.c_str(), bytes.data()) == 1 || inet_pton(AF_INET6, host.c_str(), bytes.data()) == 1;
}

/// The step at which a request without a connection failed. libcurl's error tells it, or how far it came.
std::size_t failedStep(const Exchange& opening)
{
    switch (static_cast<URLErrorCode>(opening.error ? opening.error->code : 0)) {
    case URLErrorCode::BadURL:
    case URLErrorCode::CannotFindHost:
        return 0;
    case URLErrorCode::CannotConnectToHost:
        return 1;
    case URLErrorCode::SecureConnectionFailed:
        return 2;
    default:
        break;
    }
    if (!opening.transfer.name) {
        return 0;
    }
    return opening.transfer.connect ? 2 : 1;
}

} // namespace

AttemptStages::AttemptStages(const Attempt& attempt)
    : m_attempt(attempt), m_check(find(Exchange::Kind::SessionCheck)), m_logon(find(Exchange::Kind::Logon))
{
}

const Exchange* AttemptStages::find(Exchange::Kind kind) const
{
    const auto found = std::ranges::find(m_attempt.exchanges, kind, &Exchange::kind);
    return found != m_attempt.exchanges.end() ? &*found : nullptr;
}

/// A check that found no connection is followed by a logon, which tries again.
const Exchange* AttemptStages::opening() const
{
    const bool checkConnected = m_check != nullptr && m_check->transfer.connection != Connection::None;
    return checkConnected || m_logon == nullptr ? m_check : m_logon;
}

std::array<Stage, stageCount> AttemptStages::beforeFeeds() const
{
    std::array<Stage, stageCount> stages;
    for (std::size_t i = 0; i < stages.size(); ++i) {
        stages[i].kind = static_cast<StageKind>(i);
    }
    if (opening() == nullptr) {
        // The demonstration console is asked for nothing.
        for (std::size_t i = 0; i + 1 < stages.size(); ++i) {
            stages[i].result = StageResult::NotNeeded;
        }
        return stages;
    }
    addConnection(stages);
    if (opening()->transfer.connection != Connection::None) {
        addRequests(stages);
    }
    return stages;
}

void AttemptStages::addConnection(std::array<Stage, stageCount>& stages) const
{
    const TransferRecord& transfer = opening()->transfer;
    const std::array<std::optional<Duration>, connectionSteps> took = {transfer.name, transfer.connect,
                                                                       transfer.secure};
    const bool isKept = transfer.connection == Connection::Kept;
    const std::size_t failed = transfer.connection == Connection::None ? failedStep(*opening()) : connectionSteps;
    Duration before{};
    for (std::size_t i = 0; i < connectionSteps && i <= failed; ++i) {
        Stage& step = stages[i];
        if (i == failed) {
            step.result = StageResult::Failed;
            step.duration = std::max(Duration(0), transfer.worked() - before);
            step.error = opening()->error;
        } else if (isKept || (step.kind == StageKind::Name && isNumeric(m_attempt.address))) {
            step.result = StageResult::NotNeeded;
        } else {
            step.result = StageResult::Done;
            step.duration = took[i].value_or(Duration(0));
            before += step.duration;
        }
    }
}

void AttemptStages::addRequests(std::array<Stage, stageCount>& stages) const
{
    Stage& check = stages[static_cast<std::size_t>(StageKind::SessionCheck)];
    Stage& logon = stages[static_cast<std::size_t>(StageKind::Logon)];
    check.result = StageResult::NotNeeded;
    if (m_check != nullptr) {
        check = ofRequest(StageKind::SessionCheck, *m_check);
        // A key that the console no longer accepts is an answer, too.
        if (check.error && check.error->domain == statusErrorDomain) {
            check.result = StageResult::Done;
            check.error.reset();
        }
    }
    if (m_logon != nullptr) {
        logon = ofRequest(StageKind::Logon, *m_logon);
    } else if (m_check != nullptr && !m_check->error) {
        logon.result = StageResult::NotNeeded;
    }
}

/// The opening request's connection has stages of its own; what a later request spends on one counts as its own time.
Stage AttemptStages::ofRequest(StageKind kind, const Exchange& exchange) const
{
    Stage stage;
    stage.kind = kind;
    stage.result = exchange.error ? StageResult::Failed : StageResult::Done;
    stage.duration = &exchange == opening() ? exchange.transfer.exchange : exchange.transfer.worked();
    stage.status = exchange.status;
    stage.error = exchange.error;
    return stage;
}

Stage AttemptStages::ofFeeds(const std::array<FeedReading, feedTable.size()>& feeds)
{
    Stage stage;
    stage.kind = StageKind::Feeds;
    stage.result = StageResult::Done;
    std::optional<WallTime> start;
    std::optional<WallTime> end;
    for (const FeedReading& feed : feeds) {
        if (feed.error && !stage.error) {
            stage.result = StageResult::Failed;
            stage.error = feed.error;
        }
        if (feed.began) {
            start = std::min(start.value_or(*feed.began), *feed.began);
            end = std::max(end.value_or(*feed.began), *feed.began + feed.duration);
        }
    }
    if (start) {
        stage.duration = std::chrono::duration_cast<Duration>(*end - *start);
    }
    return stage;
}

} // namespace lodestar

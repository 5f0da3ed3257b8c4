// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attempt.h"

#include <array>
#include <cstddef>

namespace lodestar
{

/// What an attempt's exchanges say of its stages. Neither may outlive the attempt.
class AttemptStages
{
public:
    explicit AttemptStages(const Attempt& attempt);

    /// The request that made the attempt's first connection, or failed to. Null without requests.
    const Exchange* opening() const;
    const Exchange* logon() const { return m_logon; }
    /// All stages but the feeds' own, which is not reached.
    std::array<Stage, stageCount> beforeFeeds() const;
    static Stage ofFeeds(const std::array<FeedReading, feedTable.size()>& feeds);

private:
    const Exchange* find(Exchange::Kind kind) const;
    void addConnection(std::array<Stage, stageCount>& stages) const;
    void addRequests(std::array<Stage, stageCount>& stages) const;
    Stage ofRequest(StageKind kind, const Exchange& exchange) const;

    const Attempt& m_attempt;
    const Exchange* m_check;
    const Exchange* m_logon;
};

} // namespace lodestar

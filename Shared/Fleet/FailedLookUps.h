// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"

#include <map>
#include <optional>
#include <string>

namespace lodestar
{

/// The look-ups of screens through one feed's links that failed since the feed was read. A value.
class FailedLookUps
{
public:
    /// Adds a look-up; one that succeeded only takes an earlier failure of the same link back. Returns what the feed's
    /// reading, which is given as it is shown now, becomes; nothing when it stays.
    std::optional<FeedReading> add(const std::string& link, const FeedReading& lookUp, const FeedReading& shown);

private:
    std::map<std::string, FeedReading> m_byLink;
    FeedReading m_before; ///< the feed's reading without them
};

} // namespace lodestar

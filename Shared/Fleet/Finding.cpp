// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Finding.h"

namespace lodestar
{

bool wasRead(const ConsoleSnapshot& console)
{
    return console.reading != nullptr && (console.reading->outcome == Reading::Outcome::Complete ||
                                          console.reading->outcome == Reading::Outcome::Partial);
}

FindingBand bandOf(FindingRank rank)
{
    if (rank <= FindingRank::PartitionError) {
        return FindingBand::Errors;
    }
    if (rank <= FindingRank::FeedsMissing) {
        return FindingBand::NotAnswering;
    }
    return rank <= FindingRank::GroupError ? FindingBand::Warnings : FindingBand::OpenEvents;
}

bool Finding::isIncomplete() const
{
    return subject == FindingSubject::System && state.find("error") == std::string::npos &&
           state.find("incomplete") != std::string::npos;
}

} // namespace lodestar

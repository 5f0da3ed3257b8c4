// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/FleetPicture.h"
#include "Inventory/Metrics/MetricsTimeline.h"
#include "Platform/Result.h"

#include <string>
#include <vector>

namespace lodestar
{

/// A system among those of all consoles.
struct ChosenSystem {
    CorvelRef corvel;
    std::string name;
    std::string identifier;
    std::string console;
};

/// The system that is called so, by identifier or name. Fails with a sentence for a person when none is, or several.
Result<ChosenSystem> systemCalled(const FleetPicture& picture, const std::string& name);

/// Asks the consoles for the metrics of these systems, all at once; their session keys are fresh from the refresh. One
/// answer a system, in their order; fails as a whole only when a signal came. Main thread.
Result<std::vector<Result<PerformanceMetrics>>> fetchMetrics(Session& session,
                                                             const std::vector<ChosenSystem>& systems);

} // namespace lodestar

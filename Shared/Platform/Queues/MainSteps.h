// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>

namespace lodestar
{

/// A step's answer: how the work goes on.
enum class NextStep {
    AtOnce, ///< there is more to do
    Later,  ///< nothing to do now; call again after a pause
    None    ///< the work is over; only its owner can start it again
};

/// Does work that blocks the main thread in steps, so that input is handled and frames are drawn in between: steps run
/// for 40 ms, then the main loop has 20 ms. A single step that takes longer blocks the loop for its own time only. Main
/// thread. With no delay, the first steps run before the call returns.
void doInStepsOnMain(std::function<NextStep()> step, std::chrono::milliseconds delay = {});

} // namespace lodestar

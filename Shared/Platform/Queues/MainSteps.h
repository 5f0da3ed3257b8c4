// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>

namespace lodestar
{

/// How work in steps goes on.
enum class NextStep {
    AtOnce, ///< there is more to do
    Later,  ///< not now: ask again after a pause
    None    ///< the work is over, or whoever wants more of it starts it again
};

/// Does work that blocks the main thread piece by piece, so that input is handled and frames are drawn between the
/// pieces: steps follow each other for 40 ms, then the main loop has 20 ms. A step that takes longer than that holds
/// the loop up for its own time only. Main thread. After no delay the first steps are done before the call returns.
void doInStepsOnMain(std::function<NextStep()> step, std::chrono::milliseconds delay = {});

} // namespace lodestar

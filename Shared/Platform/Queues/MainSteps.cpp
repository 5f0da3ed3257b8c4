// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/MainSteps.h"

#include "Platform/Queues/MainQueue.h"

#include <utility>

namespace lodestar
{

namespace
{

constexpr std::chrono::milliseconds stretch{40};
constexpr std::chrono::milliseconds pause{20};

} // namespace

void doInStepsOnMain(std::function<NextStep()> step, std::chrono::milliseconds delay)
{
    if (delay > std::chrono::milliseconds::zero()) {
        MainQueue::shared().asyncAfter(delay, [step = std::move(step)]() mutable { doInStepsOnMain(std::move(step)); });
        return;
    }
    const auto end = std::chrono::steady_clock::now() + stretch;
    NextStep next = NextStep::AtOnce;
    while (next == NextStep::AtOnce && std::chrono::steady_clock::now() < end) {
        next = step();
    }
    if (next != NextStep::None) {
        doInStepsOnMain(std::move(step), pause);
    }
}

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RXPromise.h"

#include <utility>
#include <vector>

namespace lodestar
{

/// Runs blocks when told to, on the thread that tells it.
class ManualThread : public ThreadContext
{
public:
    void dispatchBlock(Task block) override { m_blocks.push_back(std::move(block)); }
    std::size_t runAll()
    {
        std::vector<Task> blocks = std::exchange(m_blocks, {});
        for (Task& block : blocks) {
            block();
        }
        return blocks.size();
    }

private:
    std::vector<Task> m_blocks;
};

} // namespace lodestar

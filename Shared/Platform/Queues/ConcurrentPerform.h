// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>

namespace lodestar
{

/// Calls the block with each number below `count`, on the calling thread and on threads of the pool at once, and
/// returns when all calls have returned. On devices with more than two processors one is left to the main thread. Any
/// thread.
void concurrentPerform(std::size_t count, const std::function<void(std::size_t)>& block);

} // namespace lodestar

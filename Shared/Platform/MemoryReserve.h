// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Memory kept aside for the moment when memory runs out: without it, an allocation of a few bytes that fails in the
/// middle of a request would end the process. When an allocation fails, the reserve is freed and the allocation is
/// tried again. With no reserve left, the allocation throws `std::bad_alloc` as usual. Code that allocates a lot, for a
/// feed or a store, turns `std::bad_alloc` into an error of its own.
namespace MemoryReserve
{
/// Installs the reserve for the whole process. Call it once, before other threads run.
void install();
/// Refills the reserve if it was freed. Any thread. Cheap enough to call often: with a full reserve it does almost
/// nothing.
void topUp() noexcept;
} // namespace MemoryReserve

} // namespace lodestar

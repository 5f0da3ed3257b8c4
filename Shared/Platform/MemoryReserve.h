// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Memory that is kept aside for the moment when there is none: a few bytes that cannot be had, in the middle of a
/// request, would end the process. When an allocation fails the reserve is given back and the allocation tried again;
/// without a reserve it is `std::bad_alloc`, as ever. Whoever asks for a lot, for a feed or a store, takes that for an
/// error of its own.
namespace MemoryReserve
{
/// From now on, for the whole process. Once, before other threads run.
void install();
/// Puts memory aside again if it was given back. Any thread, often: it costs a look while the reserve is there.
void topUp() noexcept;
} // namespace MemoryReserve

} // namespace lodestar

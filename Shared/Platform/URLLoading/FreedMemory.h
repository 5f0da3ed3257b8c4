// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Gives memory that was freed back to the system. The GNU allocator would keep the many freed pieces of a large body.
void giveFreedMemoryBack();

} // namespace lodestar

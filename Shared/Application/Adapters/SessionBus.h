// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Whether the person's session has a bus. Whoever asks for one that is not there may start one.
bool hasSessionBus();

/// Where there is no bus, has nobody in the process look for one: the system's accessibility asks on the main thread,
/// and would start a bus that outlives the process and hold up the first screen meanwhile. Before the application
/// object is made.
void leaveAbsentSessionBus();

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Whether the person's session has a bus. Ask before connecting: connecting to an absent bus may start one.
bool hasSessionBus();

/// Where there is no bus, keeps everything in the process from looking for one: the system's accessibility would
/// otherwise ask on the main thread, start a bus that outlives the process, and hold up the first screen meanwhile.
/// Call it before the application object is made.
void leaveAbsentSessionBus();

} // namespace lodestar

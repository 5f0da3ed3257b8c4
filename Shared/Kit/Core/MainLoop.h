// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Makes the calling thread the main one and lets its Qt event loop drain `MainQueue::shared()`. Call once, when the
/// application object stands; the queue's wake is taken back when that object goes.
void installMainLoop();

} // namespace lodestar

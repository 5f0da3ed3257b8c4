// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Watch.h"

namespace lodestar
{

/// The words of the watch's messages. What consoles say is shortened and isolated within a sentence. Main thread.
namespace WatchMessages
{

/// `counts` keeps names, addresses and texts out.
Message of(const WatchNews& news, bool counts, WallTime now);
Message test();

} // namespace WatchMessages

} // namespace lodestar

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace lodestar::simulator
{

/// A non-blocking socket that listens there, to be closed by the caller. Throws `std::system_error`.
int listeningSocket(const std::string& address, int port);
/// The next connection to it, non-blocking; -1 for none.
int acceptedSocket(int listener);

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace lodestar::simulator
{

/// A non-blocking socket that listens on the address. The caller closes it. Throws `std::system_error`.
int listeningSocket(const std::string& address, int port);
/// Accepts the next connection as a non-blocking socket; -1 when there is none.
int acceptedSocket(int listener);

} // namespace lodestar::simulator

// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar::test
{

/// What the test program does when it is started with "--keychain": a few calls, their answers printed a line each.
/// The state of a keychain library lasts as long as its process, so each case gets one of its own.
int runKeychainCalls();

} // namespace lodestar::test

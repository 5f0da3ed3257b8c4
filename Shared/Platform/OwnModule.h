// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// A function of one of Lodestar's own loadable modules, "NAME.so", which lie beside the program or, installed, in
/// ../lib/lodestar as seen from it. Loads the module for the rest of the process's life. Null when the module or the
/// function is not there (`dlerror()` may tell why), and on systems other than Linux, where everything is linked with
/// the program. Any thread.
void* functionOfOwnModule(const char* module, const char* function);

} // namespace lodestar

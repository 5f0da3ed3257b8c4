// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// Finds a function in one of Lodestar's own loadable modules, "NAME.so". The modules lie beside the program or, when
/// installed, in ../lib/lodestar relative to the program. Loads the module for the rest of the process's life. Null
/// when the module or the function is missing (`dlerror()` may tell why), and on systems other than Linux, where the
/// modules are linked with the program. Any thread.
void* functionOfOwnModule(const char* module, const char* function);

} // namespace lodestar

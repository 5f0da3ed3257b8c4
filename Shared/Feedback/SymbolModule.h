// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// The one function of lodestar-symbols.so (see OwnModule.h). It is in a separate module, because the libraries that
/// read debugging information would slow every start, and only the start after a crash needs them.
///
/// Names the functions at addresses of this process. For each address with a name it calls `found` with the address's
/// index, the demangled name, the source file (empty when unknown) and the line.
extern "C" {
using LodestarSymbolFound = void (*)(void* context, std::size_t index, const char* function, const char* file,
                                     unsigned line);
void lodestar_find_symbols(void* const* addresses, std::size_t count, LodestarSymbolFound found, void* context);
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// The one function of lodestar-symbols.so (see OwnModule.h). A module of its own, because the libraries
/// that read debugging information would make every start slower for the sake of the one after a crash.
///
/// Names the functions at addresses of this process: calls `found` for each that has a name, with its index, its
/// demangled name, its source file (empty when unknown) and line.
extern "C" {
using LodestarSymbolFound = void (*)(void* context, std::size_t index, const char* function, const char* file,
                                     unsigned line);
void lodestar_find_symbols(void* const* addresses, std::size_t count, LodestarSymbolFound found, void* context);
}

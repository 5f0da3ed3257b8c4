// SPDX-License-Identifier: Apache-2.0
#include "Feedback/SymbolModule.h"

#include <backward.hpp>
#include <string>

extern "C" void lodestar_find_symbols(void* const* addresses, std::size_t count, LodestarSymbolFound found,
                                      void* context)
{
    backward::TraceResolver resolver;
    resolver.load_addresses(addresses, static_cast<int>(count));
    for (std::size_t index = 0; index < count; ++index) {
        const backward::ResolvedTrace trace =
            resolver.resolve(backward::ResolvedTrace(backward::Trace(addresses[index], index)));
        const std::string& function = trace.source.function.empty() ? trace.object_function : trace.source.function;
        if (!function.empty()) {
            found(context, index, function.c_str(), trace.source.filename.c_str(), trace.source.line);
        }
    }
}

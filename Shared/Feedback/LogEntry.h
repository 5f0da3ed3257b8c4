// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string_view>

namespace lodestar
{

/// One logged line, as a listener receives it.
struct LogEntry {
    int level;
    int tag;
    int line;
    std::string_view fileName; ///< such as "Shared/Controllers/REST/RESTHandler"
    std::string_view method;   ///< such as "-[RESTHandler login:checkToken:]"
    std::span<void* const> stacktrace;
    std::string_view message;
};

} // namespace lodestar

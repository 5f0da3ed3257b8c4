// SPDX-License-Identifier: Apache-2.0
#include "Platform/OwnModule.h"

#if defined(__linux__)
#include <dlfcn.h>
#include <filesystem>
#include <string>
#include <system_error>
#endif

namespace lodestar
{

void* functionOfOwnModule([[maybe_unused]] const char* module, [[maybe_unused]] const char* function)
{
#if defined(__linux__)
    std::error_code none;
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
    const std::string file = std::string(module) + ".so";
    for (const char* const place : {".", "../lib/lodestar"}) {
        const std::filesystem::path path = folder / place / file;
        if (std::filesystem::exists(path, none)) {
            void* const loaded = ::dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
            return loaded != nullptr ? ::dlsym(loaded, function) : nullptr;
        }
    }
#endif
    return nullptr;
}

} // namespace lodestar

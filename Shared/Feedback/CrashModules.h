// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lodestar
{

/// A loaded program or library. It translates an address of one run into a place in a file.
struct LoadedModule {
    std::uintptr_t base = 0;  ///< the difference between memory addresses and the file's addresses
    std::uintptr_t first = 0; ///< the first address, and the first one after the module
    std::uintptr_t end = 0;
    std::string buildId; ///< lower-case hexadecimal; empty when the file has none
    std::string path;    ///< absolute where the system gives an absolute path

    std::string name() const { return path.substr(path.rfind('/') + 1); }
    bool contains(std::uintptr_t address) const { return address >= first && address < end; }
};

/// All modules that are loaded now, the program first. Not for signal handlers: it takes the loader's lock.
std::vector<LoadedModule> loadedModules();

} // namespace lodestar

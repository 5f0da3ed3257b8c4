// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lodestar
{

/// A program or library in memory: what turns an address of one run into a place in a file.
struct LoadedModule {
    std::uintptr_t base = 0;  ///< what the file's addresses are moved by
    std::uintptr_t first = 0; ///< the addresses that it takes, `end` not included
    std::uintptr_t end = 0;
    std::string buildId; ///< lower-case hexadecimal, empty when it has none
    std::string path;    ///< absolute where the system tells it so

    std::string name() const { return path.substr(path.rfind('/') + 1); }
    bool contains(std::uintptr_t address) const { return address >= first && address < end; }
};

/// What is loaded at this moment, the program first. Not for signal handlers: it takes the loader's lock.
std::vector<LoadedModule> loadedModules();

} // namespace lodestar

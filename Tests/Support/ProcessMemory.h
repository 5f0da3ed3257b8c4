// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <fstream>
#include <string>

namespace lodestar
{

/// A figure of this process's memory in bytes, by its name in the system's list; 0 for none.
inline double memory(const std::string& key)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == key + ":") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes * 1024;
        }
    }
    return 0;
}

/// The peak begins anew; returns what is resident now.
inline double startPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
    return memory("VmRSS");
}

} // namespace lodestar

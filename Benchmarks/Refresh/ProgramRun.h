// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <chrono>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace lodestar::bench
{

/// The feeds that a refresh requests from a console.
constexpr std::array<std::string_view, 6> feedPaths = {
    "uom/ManagementConsole", "uom/ManagedSystem",    "uom/VirtualIOServer",
    "uom/LogicalPartition",  "sem/ServiceableEvent", "uom/Group",
};

/// Runs a program to its end and returns how many nanoseconds that took. Throws when the program fails.
inline double runProgram(const std::vector<std::string>& command)
{
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    int status = 0;
    if (posix_spawnp(&pid, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0 ||
        waitpid(pid, &status, 0) != pid || status != 0) {
        throw std::runtime_error(command[0] + " failed");
    }
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

} // namespace lodestar::bench

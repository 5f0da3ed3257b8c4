// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// The port on which every console listens; clients cannot be told another.
inline constexpr int consolePort = 12443;

/// What a fleet of simulated consoles looks like. The same settings always give the same inventory.
struct Settings {
    /// Consoles, each on an address of its own.
    int consoles = 1;
    /// Managed systems a console.
    int systems = 8;
    /// Logical partitions a managed system.
    int partitions = 4;
    /// Virtual I/O servers, serviceable events and resource groups a console.
    int vios = 6;
    int events = 8;
    int groups = 9;
    /// Metrics samples that a console has of a system, at most as many as it is asked for. Each has the figures of the
    /// system's partitions too: with 105 of those, 240 samples come to about 12 MB.
    int samples = 240;
    /// About how many bytes each feed is padded to; 0 for no padding.
    std::size_t feedBytes = 0;
    /// Milliseconds between a request and its answer.
    int latency = 0;
    /// Milliseconds that the network takes to a console and back: every connection, handshake, request and answer has
    /// its share of them.
    int roundTrip = 0;
    /// Of a hundred pieces on a network with a length, how many come two round trips late.
    int stalls = 0;
    std::uint64_t seed = 1;
    /// Made-up credentials that every console accepts.
    std::string user = "operator";
    std::string password = "lantern-7-quay";
    /// Address of the first console, 127.a.b.c; empty for a free block of addresses that the process chooses itself.
    std::string address;
    /// Whether feeds go out compressed to clients that accept it.
    bool gzip = true;
    /// How many requests are kept, the oldest dropped first; 0 keeps none.
    std::size_t recordCap = 100000;
    /// Where the receiver of reports leaves its certificate; empty for no receiver.
    std::string receiver;
    /// Faults present from the start, as `Fault` parses them.
    std::vector<std::string> faults;
};

/// The command line that gives these settings to the program.
std::vector<std::string> argumentsOf(const Settings& settings);

/// What the command line asks for.
struct CommandLine {
    Settings settings;
    /// Steered by a parent: the process ends when its standard input does.
    bool control = false;
    bool help = false;
};

/// Throws `std::invalid_argument`, with a text for the user, for what it does not understand.
CommandLine parseArguments(const std::vector<std::string>& arguments);

std::string_view helpText();

/// The address of the i-th console from a base: 254 addresses in every block of 256, so 127.0.0.254 is followed by
/// 127.0.1.1. Throws `std::invalid_argument` for a base that is no loopback address and `std::out_of_range` past
/// 127.255.255.254.
std::string addressAt(std::string_view base, int index);

} // namespace lodestar::simulator

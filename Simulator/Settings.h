// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator
{

/// The port on which every console listens. Clients have no setting for another port.
inline constexpr int consolePort = 12443;

/// What a fleet of simulated consoles looks like. Equal settings always give the same inventory.
struct Settings {
    /// How many consoles there are, each with its own address.
    int consoles = 1;
    /// Managed systems per console.
    int systems = 8;
    /// Logical partitions per managed system.
    int partitions = 4;
    /// Virtual I/O servers, serviceable events and resource groups per console.
    int vios = 6;
    int events = 8;
    int groups = 9;
    /// Metrics samples that a console has of a system; it sends at most as many as were asked for. Each sample also has
    /// the figures of the system's partitions: with 105 partitions, 240 samples are about 12 MB.
    int samples = 240;
    /// The size in bytes to which each feed is padded, roughly; 0 for no padding.
    std::size_t feedBytes = 0;
    /// Milliseconds between a request and its answer.
    int latency = 0;
    /// Milliseconds of the network's round trip. Connections, handshakes, requests and answers all take longer by it.
    int roundTrip = 0;
    /// How many of a hundred pieces come two round trips late. Without a round trip this has no effect.
    int stalls = 0;
    std::uint64_t seed = 1;
    /// Made-up credentials that every console accepts.
    std::string user = "operator";
    std::string password = "lantern-7-quay";
    /// The first console's address, 127.a.b.c; "auto" for a free block of addresses, which the process chooses.
    std::string address = "auto";
    /// Whether feeds are compressed for clients that accept compression.
    bool gzip = true;
    /// How many requests are kept, after which the oldest are dropped; 0 keeps none.
    std::size_t recordCap = 100000;
    /// The file into which the receiver of reports writes its certificate; empty for no receiver.
    std::string receiver{};
    /// A file with a story of what happens to the consoles; empty for none.
    std::string story{};
    /// Seconds of the story that have passed when the simulator starts.
    int storyAt = 0;
    /// When the story began, in seconds since 1970, as the events' time stamps have it; 0 for the real time.
    std::size_t storyEpoch = 0;
    /// Whether the story's clock stands still until it is moved.
    bool storyStill = false;
    /// Faults from the start on, in the form that `Fault::parse` reads.
    std::vector<std::string> faults{};
};

/// The program's command line for these settings.
std::vector<std::string> argumentsOf(const Settings& settings);

/// What a command line asks for.
struct CommandLine {
    Settings settings;
    /// A parent process controls this one, which ends when its standard input does.
    bool control = false;
    bool help = false;
};

/// Throws `std::invalid_argument`, with a text for the user, when it does not understand the arguments.
CommandLine parseArguments(const std::vector<std::string>& arguments);

/// The command line's options and the commands; the names of the faults are to follow.
std::string helpText();

/// The address of the console with the index, counted from `base`. Each block of 256 has 254 addresses, so 127.0.0.254
/// is followed by 127.0.1.1. Throws `std::invalid_argument` when `base` is no loopback address, and `std::out_of_range`
/// past 127.255.255.254.
std::string addressAt(std::string_view base, int index);

} // namespace lodestar::simulator

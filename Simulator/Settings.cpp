// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Settings.h"

#include <algorithm>
#include <arpa/inet.h>
#include <charconv>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <variant>

namespace lodestar::simulator
{

namespace
{

/// An option with a value, and the setting that it sets.
struct Option {
    std::string_view name;
    std::variant<int Settings::*, std::size_t Settings::*, std::string Settings::*> member;
    std::string_view help;
};

constexpr Option options[] = {
    {"--consoles", &Settings::consoles, "consoles, each on an address of its own"},
    {"--systems", &Settings::systems, "managed systems a console"},
    {"--partitions", &Settings::partitions, "logical partitions a managed system"},
    {"--vios", &Settings::vios, "virtual I/O servers a console"},
    {"--events", &Settings::events, "serviceable events a console"},
    {"--groups", &Settings::groups, "resource groups a console"},
    {"--samples", &Settings::samples, "metrics samples a system; each grows with the partitions"},
    {"--feed-bytes", &Settings::feedBytes, "pad every feed to about so many bytes; 0: not padded"},
    {"--latency", &Settings::latency, "milliseconds' wait before every answer"},
    {"--round-trip", &Settings::roundTrip, "milliseconds of the network's way to a console and back"},
    {"--stalls", &Settings::stalls, "with a round trip: of a hundred pieces, how many come two round trips late"},
    {"--seed", &Settings::seed, "another seed gives another inventory"},
    {"--record-cap", &Settings::recordCap, "how many requests are remembered"},
    {"--user", &Settings::user, "the name that every console accepts; it is the simulator's own"},
    {"--password", &Settings::password, "likewise the password"},
    {"--address", &Settings::address, "address of the first console, or \"auto\" for a free block"},
    {"--receiver", &Settings::receiver,
     "take feedback reports in as well, on port 12444 of the first address; the\n                    certificate that "
     "vouches for it is written into this file, for SSL_CERT_FILE"},
    {"--story", &Settings::story, "a file that says what happens to the consoles over time; see below"},
    {"--story-at", &Settings::storyAt, "begin the story so many seconds in"},
    {"--story-epoch", &Settings::storyEpoch, "when the story began, in seconds since 1970; 0: at the start"},
};

/// Where the consoles of a command line begin unless it says otherwise.
constexpr const char* firstAddress = "127.0.0.2";

std::string textOf(const Settings& settings, const Option& option)
{
    return std::visit(
        [&settings](auto member) {
            if constexpr (std::is_same_v<decltype(member), std::string Settings::*>) {
                return settings.*member;
            } else {
                return std::to_string(settings.*member);
            }
        },
        option.member);
}

void set(Settings& settings, const Option& option, const std::string& text)
{
    const auto setMember = [&](auto member) {
        if constexpr (std::is_same_v<decltype(member), std::string Settings::*>) {
            settings.*member = text;
        } else {
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), settings.*member);
            if (error != std::errc() || end != text.data() + text.size() || std::cmp_less(settings.*member, 0)) {
                throw std::invalid_argument(std::string(option.name) + " wants a number, not \"" + text + "\"");
            }
        }
    };
    std::visit(setMember, option.member);
}

} // namespace

std::vector<std::string> argumentsOf(const Settings& settings)
{
    std::vector<std::string> arguments;
    for (const Option& option : options) {
        arguments.insert(arguments.end(), {std::string(option.name), textOf(settings, option)});
    }
    if (!settings.gzip) {
        arguments.emplace_back("--no-gzip");
    }
    if (settings.storyStill) {
        arguments.emplace_back("--story-still");
    }
    for (const std::string& fault : settings.faults) {
        arguments.insert(arguments.end(), {"--fault", fault});
    }
    return arguments;
}

CommandLine parseArguments(const std::vector<std::string>& arguments)
{
    CommandLine line;
    line.settings.address = firstAddress;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        const auto* const option = std::ranges::find(options, name, &Option::name);
        if (name == "--help" || name == "-h") {
            line.help = true;
        } else if (name == "--control") {
            line.control = true;
        } else if (name == "--no-gzip") {
            line.settings.gzip = false;
        } else if (name == "--story-still") {
            line.settings.storyStill = true;
        } else if (option == std::end(options) && name != "--fault") {
            throw std::invalid_argument("unknown option " + name);
        } else if (i + 1 == arguments.size()) {
            throw std::invalid_argument(name + " wants a value");
        } else if (name == "--fault") {
            line.settings.faults.push_back(arguments[++i]);
        } else {
            set(line.settings, *option, arguments[++i]);
        }
    }
    return line;
}

std::string helpText()
{
    std::string help = "lodestar-simulator: consoles to point a client at, on loopback addresses, port 12443\n\n";
    Settings usual;
    usual.address = firstAddress;
    for (const Option& option : options) {
        const std::string text = textOf(usual, option);
        help.append("  ").append(option.name).append(18 - option.name.size(), ' ').append(option.help);
        help.append(text.empty() ? "\n" : " (" + text + ")\n");
    }
    return help + R"(  --no-gzip         never compress
  --story-still     the story's clock moves by the command "advance" alone
  --fault NAME[:WHAT][:CONSOLE]
                    a fault from the start, for one console or all; may be repeated
  --control         end when standard input ends

Commands on standard input, each answered with lines that end in "ok" or "error TEXT"; arguments percent-encoded:
  fault NAME[:WHAT][:CONSOLE]     clear [NAME[:WHAT][:CONSOLE]]     latency MS
  round-trip MS
  requests    clear-requests      statistics [CONSOLE]              summary CONSOLE
  stop CONSOLE    start CONSOLE   certificate CONSOLE               feed CONSOLE TYPE [BODY]
  reports     advance SECONDS, in the story
  quit

Trying it by hand:
  BODY='<LogonRequest><UserID>operator</UserID><Password>lantern-7-quay</Password></LogonRequest>'
  curl -sk -X PUT --data "$BODY" https://127.0.0.2:12443/rest/api/web/Logon
  curl -sk -H "X-API-Session: KEY" https://127.0.0.2:12443/rest/api/uom/ManagedSystem
  curl -sk https://127.0.0.2:12444/reports      the reports that came; the first one's archive is at .../reports/1

Faults. WHAT is a feed's type, or Logon, SessionCheck, Quick, Metrics, MetricsDocument, All; feeds when left out:
)";
}

std::string addressAt(std::string_view base, int index)
{
    in_addr parsed{};
    if (inet_pton(AF_INET, std::string(base).c_str(), &parsed) != 1) {
        throw std::invalid_argument("not an address: " + std::string(base));
    }
    const std::uint32_t first = ntohl(parsed.s_addr);
    const std::uint32_t last = first & 0xFFU;
    if (first >> 24U != 127 || last == 0 || last == 255) {
        throw std::invalid_argument("not an address of the loopback network: " + std::string(base));
    }
    const std::uint32_t position = last - 1 + static_cast<std::uint32_t>(index);
    const std::uint32_t block = (first >> 8U) + position / 254;
    if (block > 0x7FFFFFU) {
        throw std::out_of_range("no loopback address left");
    }
    const std::uint32_t address = (block << 8U) | (position % 254 + 1);
    return std::to_string(address >> 24U) + "." + std::to_string(address >> 16U & 0xFFU) + "." +
           std::to_string(address >> 8U & 0xFFU) + "." + std::to_string(address & 0xFFU);
}

} // namespace lodestar::simulator

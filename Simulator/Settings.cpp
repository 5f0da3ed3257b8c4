// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Settings.h"

#include <arpa/inet.h>
#include <charconv>
#include <functional>
#include <map>
#include <stdexcept>

namespace lodestar::simulator
{

namespace
{

template <typename Number>
Number numberFrom(const std::string& option, const std::string& text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < Number{}) {
        throw std::invalid_argument(option + " wants a number, not \"" + text + "\"");
    }
    return number;
}

using Setter = std::function<void(CommandLine&, const std::string& option, const std::string& value)>;

template <typename Number>
Setter numberSetter(Number Settings::*member)
{
    return [member](CommandLine& line, const std::string& option, const std::string& value) {
        line.settings.*member = numberFrom<Number>(option, value);
    };
}

Setter textSetter(std::string Settings::*member)
{
    return [member](CommandLine& line, const std::string& /*option*/, const std::string& value) {
        line.settings.*member = value;
    };
}

const std::map<std::string, Setter, std::less<>>& setters()
{
    static const std::map<std::string, Setter, std::less<>> table = {
        {"--consoles", numberSetter(&Settings::consoles)},
        {"--systems", numberSetter(&Settings::systems)},
        {"--partitions", numberSetter(&Settings::partitions)},
        {"--vios", numberSetter(&Settings::vios)},
        {"--events", numberSetter(&Settings::events)},
        {"--groups", numberSetter(&Settings::groups)},
        {"--samples", numberSetter(&Settings::samples)},
        {"--feed-bytes", numberSetter(&Settings::feedBytes)},
        {"--latency", numberSetter(&Settings::latency)},
        {"--round-trip", numberSetter(&Settings::roundTrip)},
        {"--stalls", numberSetter(&Settings::stalls)},
        {"--seed", numberSetter(&Settings::seed)},
        {"--record-cap", numberSetter(&Settings::recordCap)},
        {"--receiver", textSetter(&Settings::receiver)},
        {"--user", textSetter(&Settings::user)},
        {"--password", textSetter(&Settings::password)},
        {"--address",
         [](CommandLine& line, const std::string& /*option*/, const std::string& value) {
             line.settings.address = value == "auto" ? std::string() : value;
         }},
        {"--fault", [](CommandLine& line, const std::string& /*option*/,
                       const std::string& value) { line.settings.faults.push_back(value); }},
    };
    return table;
}

} // namespace

std::vector<std::string> argumentsOf(const Settings& settings)
{
    std::vector<std::string> arguments = {
        "--consoles",   std::to_string(settings.consoles),
        "--systems",    std::to_string(settings.systems),
        "--partitions", std::to_string(settings.partitions),
        "--vios",       std::to_string(settings.vios),
        "--events",     std::to_string(settings.events),
        "--groups",     std::to_string(settings.groups),
        "--samples",    std::to_string(settings.samples),
        "--feed-bytes", std::to_string(settings.feedBytes),
        "--latency",    std::to_string(settings.latency),
        "--round-trip", std::to_string(settings.roundTrip),
        "--stalls",     std::to_string(settings.stalls),
        "--seed",       std::to_string(settings.seed),
        "--record-cap", std::to_string(settings.recordCap),
        "--user",       settings.user,
        "--password",   settings.password,
        "--address",    settings.address.empty() ? "auto" : settings.address,
    };
    if (!settings.gzip) {
        arguments.emplace_back("--no-gzip");
    }
    if (!settings.receiver.empty()) {
        arguments.emplace_back("--receiver");
        arguments.push_back(settings.receiver);
    }
    for (const std::string& fault : settings.faults) {
        arguments.emplace_back("--fault");
        arguments.push_back(fault);
    }
    return arguments;
}

CommandLine parseArguments(const std::vector<std::string>& arguments)
{
    CommandLine line;
    line.settings.address = "127.0.0.2";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& option = arguments[i];
        if (option == "--help" || option == "-h") {
            line.help = true;
        } else if (option == "--control") {
            line.control = true;
        } else if (option == "--no-gzip") {
            line.settings.gzip = false;
        } else if (const auto setter = setters().find(option); setter == setters().end()) {
            throw std::invalid_argument("unknown option " + option);
        } else if (i + 1 == arguments.size()) {
            throw std::invalid_argument(option + " wants a value");
        } else {
            setter->second(line, option, arguments[++i]);
        }
    }
    return line;
}

std::string_view helpText()
{
    return R"(lodestar-simulator: consoles to point a client at, on loopback addresses, port 12443

  --consoles N      consoles, each on an address of its own (1)
  --systems N       managed systems a console (8)
  --partitions N    logical partitions a managed system (4)
  --vios N          virtual I/O servers a console (6)
  --events N        serviceable events a console (8)
  --groups N        resource groups a console (9)
  --samples N       metrics samples a system (240); each grows with the partitions
  --feed-bytes N    pad every feed to about N bytes (0: not padded)
  --latency MS      wait before every answer (0)
  --round-trip MS   the network's way to a console and back (0)
  --stalls N        with a round trip: of a hundred pieces, how many come two round trips late (0)
  --seed N          another seed gives another inventory (1)
  --user U --password P
                    the credentials that every console accepts; they are the simulator's own
  --address A       address of the first console (127.0.0.2), or "auto" for a free block
  --no-gzip         never compress
  --record-cap N    how many requests are remembered (100000)
  --fault NAME[:WHAT][:CONSOLE]
                    a fault from the start, for one console or all; may be repeated
  --receiver FILE   take feedback reports in as well, on port 12444 of the first address; the certificate that
                    vouches for it is written into the file, for SSL_CERT_FILE
  --control         end when standard input ends

Faults. WHAT is a feed's type, or Logon, SessionCheck, Quick, Metrics, MetricsDocument, All; feeds when left out:
  refuseFeed emptyFeed stallFeed malformedFeed cutBody cutChunk cutGzip reset trickle hugeBody gzipBomb
  largeFeed largeGzip vastFeed
  hugeHeaders endlessChunk twoLengths redirectLoop redirectOtherHost chunked failedStatus; basicAuth (everything when left out)
  nullMetrics unprocessedMetrics emptyMetrics (the metrics document)
  refuseLogon logonWithoutKey longKey logonNotXML[:html|empty|json]
  silentAfterAccept closePort expiredCertificate misnamedCertificate; at once and once: expireSession swapCertificate

Commands on standard input, each answered with lines that end in "ok" or "error TEXT"; arguments percent-encoded:
  fault NAME[:WHAT][:CONSOLE]     clear [NAME[:WHAT][:CONSOLE]]     latency MS
  round-trip MS
  requests    clear-requests      statistics [CONSOLE]              summary CONSOLE
  stop CONSOLE    start CONSOLE   certificate CONSOLE               feed CONSOLE TYPE [BODY]
  reports
  quit

Trying it by hand:
  BODY='<LogonRequest><UserID>operator</UserID><Password>lantern-7-quay</Password></LogonRequest>'
  curl -sk -X PUT --data "$BODY" https://127.0.0.2:12443/rest/api/web/Logon
  curl -sk -H "X-API-Session: KEY" https://127.0.0.2:12443/rest/api/uom/ManagedSystem
  curl -sk https://127.0.0.2:12444/reports      the reports that came; the first one's archive is at .../reports/1
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

// SPDX-License-Identifier: Apache-2.0
// Measures how long it takes to find what is wrong in a large fleet and to make a screen's rows of it, against reading
// the states of the same objects once.
#include "Benchmarks/Program.h"
#include "Fleet/Change.h"
#include "Fleet/FindingBands.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"
#include "Inventory/ServiceableEvent.h"
#include "Simulator/FeedWriter.h"

#include <algorithm>
#include <map>
#include <string>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;

constexpr std::size_t objects = 200; // of a console, with its events and groups
/// Larger fleets share feeds and memories, so that they fit into a small device. Those of this many consoles are
/// already far larger than a processor's caches.
constexpr std::size_t distinct = 500;
const WallTime now(std::chrono::seconds(1'773'308'460));

/// A bad night on every console: a system and a partition in error, and three events open. A quarter of the partitions
/// idles.
void spread(simulator::Inventory& inventory)
{
    for (std::size_t i = 0; i < inventory.systems.size(); ++i) {
        inventory.systems[i].state = i == 0 ? "error" : "operating";
        inventory.systems[i].attentionLED = "false";
    }
    for (simulator::Partition& server : inventory.vios) {
        server.state = "running";
    }
    for (std::size_t i = 0; i < inventory.partitions.size(); ++i) {
        inventory.partitions[i].state = i == 0 ? "error" : i % 4 == 0 ? "not activated" : "running";
    }
    for (std::size_t i = 0; i < inventory.events.size(); ++i) {
        for (auto& [name, text] : inventory.events[i].fields) {
            text = name == "problemState" ? (i < 3 ? "Open" : "Closed") : text;
        }
    }
}

std::shared_ptr<const FeedDictionary> feedsOf(std::size_t console)
{
    simulator::Settings settings;
    settings.systems = 16;
    settings.partitions = 8;
    settings.vios = 32;
    settings.events = 16;
    settings.groups = 8;
    simulator::Inventory inventory = simulator::makeInventory(settings, console);
    spread(inventory);
    auto feeds = std::make_shared<FeedDictionary>();
    std::size_t entries = 0;
    for (const auto& [type, text] : simulator::writeFeeds(inventory, 0)) {
        const std::string feed = simulator::filled(
            text, {"127.0.0.2", "console", std::to_string(console), "6918b61e-c645-7a0d-6417-d56c545c61a4"});
        feeds->setFeed(type, Feed(XMLElement::parse(feed).value()));
        entries += feeds->feed(type).entryCount();
    }
    bench::require(entries == objects + 1, "a console has another number of objects");
    return feeds;
}

ConsoleSnapshot snapshotOf(std::size_t console)
{
    auto reading = std::make_shared<Reading>();
    reading->outcome = Reading::Outcome::Complete;
    reading->ended = now - 2min;
    for (std::size_t i = 0; i < feedTable.size(); ++i) {
        reading->feeds.at(i).type = feedTable.at(i).type;
    }
    auto feeds = feedsOf(console);
    const std::string name = "Console " + std::to_string(console);
    auto memory = std::make_shared<ConsoleMemory>(*differenceOf(name, name, *reading, feeds.get(), nullptr).memory);
    const auto idle = std::ranges::find_if(memory->objects,
                                           [](const auto& object) { return object.second.state == "not activated"; });
    bench::require(idle != memory->objects.end(), "every partition runs");
    idle->second.ranUntil = now - 1h;
    return {std::make_shared<Corvel>(), name, name, std::move(reading), std::move(feeds), std::move(memory)};
}

const std::vector<ConsoleSnapshot>& fleet(std::size_t consoles)
{
    static std::map<std::size_t, std::vector<ConsoleSnapshot>> fleets;
    std::vector<ConsoleSnapshot>& snapshots = fleets[consoles];
    for (std::size_t i = snapshots.size(); i < consoles; ++i) {
        snapshots.push_back(i < distinct ? snapshotOf(i) : snapshots[i % distinct]);
        snapshots.back().corvel = std::make_shared<Corvel>();
        snapshots.back().name = "Console " + std::to_string(i);
    }
    return snapshots;
}

/// Nanoseconds by the clock, since several threads work.
double since(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

double find(const std::vector<ConsoleSnapshot>& consoles)
{
    const auto start = std::chrono::steady_clock::now();
    const Findings findings = findingsOf(consoles, now);
    const double time = since(start);
    bench::require(findings.needAttention == 3 * consoles.size() && findings.openEvents == 3 * consoles.size(),
                   "not all was found");
    return time;
}

template <typename Kind>
std::size_t statesOf(const FeedDictionary& feeds)
{
    std::size_t length = 0;
    for (const Kind& record : recordsOf<Kind>(feeds.feed(Kind::type))) {
        length += record.state().value_or("").size();
    }
    return length;
}

double readStates(const std::vector<ConsoleSnapshot>& consoles)
{
    const auto start = std::chrono::steady_clock::now();
    std::size_t length = 0;
    for (const ConsoleSnapshot& console : consoles) {
        length += statesOf<ManagedSystem>(*console.feeds) + statesOf<VirtualIOServer>(*console.feeds) +
                  statesOf<LogicalPartition>(*console.feeds);
        for (const ServiceableEvent& event : recordsOf<ServiceableEvent>(console.feeds->feed(ServiceableEvent::type))) {
            length += event.problemState().value_or("").size();
        }
    }
    bench::require(length > consoles.size() * objects, "states are missing");
    return since(start);
}

double view(const Findings& findings, std::size_t consoles)
{
    const double start = bench::processorTime();
    bench::require(!viewOf(findings, {}, consoles, {}).groups.empty(), "there are no rows");
    return bench::processorTime() - start;
}

void run(benchmark::State& state, double (*once)(const std::vector<ConsoleSnapshot>&))
{
    const auto& consoles = fleet(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(once(consoles) / 1e9);
    }
}
BENCHMARK_CAPTURE(run, find, &find)->Name("findings")->Arg(500)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(run, read, &readStates)
    ->Name("findings: reading the states once")
    ->Arg(500)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

void measureRows(bench::Rows& rows)
{
    for (const auto& [consoles, goal] : {std::pair{std::size_t(500), 50.0}, std::pair{std::size_t(5000), 500.0}}) {
        const auto& snapshots = fleet(consoles);
        const auto times =
            bench::medianInterleaved([&] { return find(snapshots); }, [&] { return readStates(snapshots); });
        const std::string what = "findings of " + std::to_string(consoles) + " consoles of 200 objects";
        rows.add(what, times.ours / 1e6, 1, goal, "ms");
        rows.add(what + " / reading the states once", times.ours, times.reference, 3);
        const Findings findings = findingsOf(snapshots, now);
        std::vector<double> views;
        for (int i = 0; i < 11; ++i) {
            views.push_back(view(findings, consoles));
        }
        rows.add(what + ": a screen's rows", bench::median(views) / 1e6, 1, goal, "ms");
    }
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

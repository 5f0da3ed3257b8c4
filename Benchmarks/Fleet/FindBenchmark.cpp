// SPDX-License-Identifier: Apache-2.0
// Measures how long it takes to make 100,000 objects of many consoles searchable, how long a keystroke takes then,
// against one pass of a plain byte search over the same texts, and what the searchable texts weigh.
#include "Benchmarks/Program.h"
#include "Fleet/FleetSearch.h"
#include "Simulator/FeedWriter.h"

#include <cstring>
#include <string>

namespace lodestar
{
namespace
{

constexpr std::size_t consoles = 500;
constexpr std::size_t objects = 200; // of a console

ConsoleSnapshot snapshotOf(std::size_t console)
{
    simulator::Settings settings;
    settings.systems = 16;
    settings.partitions = 8;
    settings.vios = 32;
    settings.events = 15;
    settings.groups = 8;
    const simulator::Inventory inventory = simulator::makeInventory(settings, console);
    auto feeds = std::make_shared<FeedDictionary>();
    for (const auto& [type, text] : simulator::writeFeeds(inventory, 0)) {
        const std::string feed = simulator::filled(
            text, {"127.0.0.2", "console", std::to_string(console), "6918b61e-c645-7a0d-6417-d56c545c61a4"});
        feeds->setFeed(type, Feed(XMLElement::parse(feed).value()));
    }
    auto reading = std::make_shared<Reading>();
    reading->outcome = Reading::Outcome::Complete;
    const std::string name = "Console " + std::to_string(console);
    return {std::make_shared<Corvel>(), name, name + ".example", std::move(reading), std::move(feeds), nullptr};
}

const std::vector<ConsoleSnapshot>& fleet()
{
    static const auto snapshots = [] {
        std::vector<ConsoleSnapshot> all;
        for (std::size_t i = 0; i < consoles; ++i) {
            all.push_back(snapshotOf(i));
        }
        return all;
    }();
    return snapshots;
}

const FleetSearch& searched()
{
    static const FleetSearch search(fleet(), nullptr);
    return search;
}

double make()
{
    const auto start = std::chrono::steady_clock::now();
    const FleetSearch search(fleet(), nullptr);
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    bench::require(search.objects() == consoles * objects, "the fleet has another number of objects");
    return time.count();
}

double keystroke(const std::string& text)
{
    const double start = bench::processorTime();
    const FoundObjects found = searched().find(text);
    const double time = bench::processorTime() - start;
    bench::require(countOf(found) <= consoles * objects, "more was found than there is");
    return time;
}

/// Counts the places of the text in one stretch of all texts that the search looks into.
double bytePass(const std::string& text)
{
    static const std::string texts = [] {
        std::string all;
        for (std::size_t i = 0; i < consoles; ++i) {
            all += searched().searched(i).texts();
        }
        return all;
    }();
    const double start = bench::processorTime();
    std::size_t count = 0;
    const char* const end = texts.data() + texts.size();
    for (const char* place = texts.data();
         (place = static_cast<const char*>(
              ::memmem(place, static_cast<std::size_t>(end - place), text.data(), text.size()))) != nullptr;
         place += text.size()) {
        ++count;
    }
    benchmark::DoNotOptimize(count);
    return bench::processorTime() - start;
}

/// Bytes of an object beside the names.
double weight()
{
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < consoles; ++i) {
        bytes += searched().searched(i).memory() - searched().searched(i).nameBytes();
    }
    return static_cast<double>(bytes) / (consoles * objects);
}

void run(benchmark::State& state, double (*once)())
{
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(once() / 1e9);
    }
}
BENCHMARK_CAPTURE(run, make, &make)->Name("find: making the index")->Unit(benchmark::kMillisecond)->UseManualTime();

void measureRows(bench::Rows& rows)
{
    std::vector<double> times;
    for (int i = 0; i < 11; ++i) {
        times.push_back(make());
    }
    rows.add("find in 100,000 objects: index in the background", bench::median(times) / 1e6, 1, 300, "ms");
    rows.add("find in 100,000 objects: index beside the names, an object", weight(), 1, 60, "bytes");
    // One letter that most have, a common state, the beginning of many names, one name, nothing.
    for (const std::string text : {"e", "running", "ba", "192.0.2", "zephyr-7"}) {
        const auto both = bench::medianInterleaved([&] { return keystroke(text); }, [&] { return bytePass(text); });
        rows.add("find in 100,000 objects: \"" + text + "\"", both.ours / 1e6, 1, 16, "ms");
        rows.add("find in 100,000 objects: \"" + text + "\" / one pass of a byte search", both.ours, both.reference, 3);
    }
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

// SPDX-License-Identifier: Apache-2.0
// Measures parsing a large feed, dropping it and keeping it, against libxml2's own tree of the same bytes.
//
// The feed is that of a console with thousands of partitions, as the simulator sends it. Before each run the allocator
// gives back the memory of earlier runs: the state of the heap can double a time.
#include "Benchmarks/Program.h"
#include "Simulator/FeedWriter.h"
#include "XML/XMLElement.h"

#include <fmt/format.h>
#include <libxml/parser.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <malloc.h>
#include <span>

namespace lodestar
{
namespace
{

constexpr int systems = 40;

void check(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

std::vector<std::string> makeFeeds(const simulator::Settings& settings, std::size_t feedBytes,
                                   std::span<const std::string_view> types)
{
    const auto feeds = simulator::writeFeeds(simulator::makeInventory(settings, 1), feedBytes);
    std::vector<std::string> made;
    for (const std::string_view type : types) {
        made.push_back(simulator::filled(feeds.find(type)->second,
                                         {"127.0.0.2", "atlas", "06A17A8", "6918b61e-c645-7a0d-6417-d56c545c61a4"}));
    }
    return made;
}

std::string makeFeed(std::size_t feedBytes, int partitionsEach)
{
    simulator::Settings settings;
    settings.systems = systems;
    settings.partitions = partitionsEach;
    constexpr std::array<std::string_view, 1> type = {"LogicalPartition"};
    return makeFeeds(settings, feedBytes, type).front();
}

/// A feed, and how often one run parses it, so that runs take long enough to be compared.
struct Load {
    std::string bytes;
    std::size_t entries;
    int times;
};

const Load& large()
{
    static const Load load{makeFeed(26'000'000, 100), std::size_t{systems} * 100, 1};
    return load;
}

const Load& usual()
{
    static const Load load{makeFeed(200'000, 1), systems, 100};
    return load;
}

/// Nanoseconds of one parse, averaged over the load's parses.
template <typename Work>
double timed(const Load& load, const Work& work)
{
    ::malloc_trim(0);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < load.times; ++i) {
        work();
    }
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / load.times;
}

XMLElement parsed(const Load& load)
{
    auto root = XMLElement::parse(load.bytes);
    check(root.ok() && root.value().childCount("entry") == load.entries, "every entry is there");
    return std::move(root).value();
}

double ours(const Load& load)
{
    return timed(load, [&] { parsed(load); });
}

double tree(const Load& load)
{
    return timed(load, [&] {
        const xmlDocPtr document = xmlReadMemory(load.bytes.data(), static_cast<int>(load.bytes.size()), nullptr,
                                                 nullptr, XML_PARSE_RECOVER | XML_PARSE_NONET);
        check(document != nullptr, "libxml2 can parse the feed");
        xmlFreeDoc(document);
    });
}

/// Bytes that the allocator has given out, including blocks that it mapped singly.
double allocated()
{
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Adds the memory of parsed feeds, divided by the bytes from which they were parsed.
void measureMemory(bench::Rows& rows, std::string_view name, const std::vector<std::string>& feeds)
{
    std::vector<XMLElement> kept;
    kept.reserve(feeds.size());
    double input = 0;
    const double before = allocated();
    for (const std::string& feed : feeds) {
        kept.push_back(XMLElement::parse(feed).value());
        input += static_cast<double>(feed.size());
    }
    rows.add(name, allocated() - before, input, 0.55, "bytes");
}

void parse(benchmark::State& state, double (*once)(const Load&), const Load& (*load)())
{
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(once(load()) / 1e9);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(load().bytes.size()));
}

BENCHMARK_CAPTURE(parse, ours, &ours, &large)
    ->Name("feed parse, 26 MB")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(parse, tree, &tree, &large)
    ->Name("libxml2's tree, 26 MB")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(parse, ours200, &ours, &usual)->Name("feed parse, 200 KB")->UseManualTime();
BENCHMARK_CAPTURE(parse, tree200, &tree, &usual)->Name("libxml2's tree, 200 KB")->UseManualTime();

constexpr std::size_t floodBytes = 10'000'000;

/// Nanoseconds of the thread's processor time, whether or not the parse succeeds.
double floodTime(const std::string& bytes)
{
    ::malloc_trim(0);
    const double start = bench::processorTime();
    benchmark::DoNotOptimize(XMLElement::parse(bytes).ok());
    return bench::processorTime() - start;
}

std::string tagOf(int attributes)
{
    std::string tag = "<a";
    for (int i = 0; i < attributes; ++i) {
        tag += fmt::format(" n{}=''", i);
    }
    return tag + "/>";
}

void measureFloods(bench::Rows& rows)
{
    const auto plain = [bytes = makeFeed(floodBytes, 100)] { return floodTime(bytes); };
    const auto add = [&](const char* name, const std::string& begin, const std::function<std::string(int)>& one) {
        std::string bytes = begin;
        for (int i = 0; bytes.size() < floodBytes; ++i) {
            bytes += one(i);
        }
        const auto medians = bench::medianInterleaved([&] { return floodTime(bytes); }, plain);
        rows.add(name, medians.ours, medians.reference, 2);
    };
    add("a feed of a million different names / a plain feed of 10 MB", "<feed>",
        [](int i) { return fmt::format("<n{}/>", i); });
    add("a feed of ten million errors / a plain feed of 10 MB", "<feed>", [](int) { return "&"; });
    add("a feed of a million attributes in one tag / a plain feed of 10 MB", "<feed><a",
        [](int i) { return fmt::format(" n{}=''", i); });
    add("a feed of a million attributes in tags of 800 / a plain feed of 10 MB", "<feed>",
        [](int) { return tagOf(800); });
    add("a feed of two million elements / a plain feed of 10 MB", "<feed>", [](int) { return "<b/>"; });
    add("a feed of a million attributes in tags of 100 / a plain feed of 10 MB", "<feed>",
        [](int) { return tagOf(100); });
    add("a feed of two million references / a plain feed of 10 MB", "<feed><a>", [](int) { return "&lt;"; });
    add("a feed of two million references in values / a plain feed of 10 MB", "<feed>",
        [](int) { return "<a b='&lt;&lt;&lt;&lt;&lt;&lt;&lt;&lt;&lt;&lt;'/>"; });
    add("a feed of three million declared references / a plain feed of 10 MB",
        "<!DOCTYPE feed [<!ENTITY a 'b'>]><feed><a>", [](int) { return "&a;"; });
    add("a feed of three million levels / a plain feed of 10 MB", "<feed>", [](int) { return "<a>"; });
}

void measureRows(bench::Rows& rows)
{
    measureFloods(rows);
    const auto medians = [](const Load& load) {
        return bench::medianInterleaved([&] { return ours(load); }, [&] { return tree(load); }, 21);
    };
    const auto many = medians(large());
    rows.add("feed parse, 26 MB / libxml2's tree of it, built and dropped", many.ours, many.reference, 0.38);
    const auto few = medians(usual());
    rows.add("feed parse, 200 KB / libxml2's tree of it, built and dropped", few.ours, few.reference, 0.4);
    measureMemory(rows, "memory of a parsed feed / bytes of input", {large().bytes});
    simulator::Settings console;
    console.systems = systems;
    console.vios = 80;
    console.events = 120;
    console.groups = 120;
    measureMemory(rows, "memory of a console's six parsed feeds of 200 KB / bytes of input",
                  makeFeeds(console, 200'000, simulator::feedTypes));
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

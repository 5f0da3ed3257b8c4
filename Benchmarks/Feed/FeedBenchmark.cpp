// SPDX-License-Identifier: Apache-2.0
// What a large feed costs to parse and to drop again, and to keep, beside libxml2's own tree of the same bytes.
//
// The feed is one of a console with thousands of partitions, as the simulator sends it. Memory that earlier runs left
// with the allocator is given back before each run: what the heap went through before can double a time.
#include "Benchmarks/Rows.h"
#include "Controllers/REST/XMLElement.h"
#include "Simulator/FeedWriter.h"

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace lodestar
{
namespace
{

constexpr std::size_t feedBytes = 26'000'000;
constexpr int systems = 40;
constexpr int partitionsEach = 100;

void check(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

std::string makeFeed()
{
    simulator::Settings settings;
    settings.systems = systems;
    settings.partitions = partitionsEach;
    const auto feeds =
        simulator::writeFeeds(simulator::makeInventory(settings, 1), simulator::Layout::Compact, feedBytes);
    return feeds.at("LogicalPartition")
        .filled({"127.0.0.2", "atlas", "06A17A8", "6918b61e-c645-7a0d-6417-d56c545c61a4"});
}

const std::string& feed()
{
    static const std::string bytes = makeFeed();
    return bytes;
}

template <typename Work>
double timed(const Work& work)
{
    ::malloc_trim(0);
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

XMLElement parsed()
{
    auto root = XMLElement::parse(feed());
    check(root.ok() && root.value().exists(), "the feed can be parsed");
    return std::move(root).value();
}

double ours()
{
    return timed([] { parsed(); });
}

double tree()
{
    return timed([] {
        xmlDocPtr document = xmlReadMemory(feed().data(), static_cast<int>(feed().size()), nullptr, nullptr,
                                           XML_PARSE_RECOVER | XML_PARSE_NONET);
        check(document != nullptr, "libxml2 can parse the feed");
        xmlFreeDoc(document);
    });
}

/// Bytes that the allocator has given out, also those that it mapped for one block.
double allocated()
{
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

double keptBytes()
{
    const double before = allocated();
    const XMLElement root = parsed();
    check(root.childCount("entry") == std::size_t{systems} * partitionsEach, "every entry is there");
    return allocated() - before;
}

void parse(benchmark::State& state, double (*once)())
{
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(once() / 1e9);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(feed().size()));
}

BENCHMARK_CAPTURE(parse, ours, &ours)->Name("feed parse, 26 MB")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(parse, tree, &tree)->Name("libxml2's tree, 26 MB")->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    using namespace lodestar;
    bench::Rows rows(argc, argv);
    if (rows.requested()) {
        feed();
        const auto medians = bench::medianInterleaved([] { return ours(); }, [] { return tree(); }, 21);
        rows.add("feed parse, 26 MB / libxml2's tree of it, built and dropped", medians.ours, medians.reference, 0.38);
        rows.add("memory of a parsed feed / bytes of input", keptBytes(), static_cast<double>(feed().size()), 2.5,
                 "bytes");
        return rows.write();
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

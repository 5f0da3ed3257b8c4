// SPDX-License-Identifier: Apache-2.0
// What it costs to make a chart's series of the metrics of a system with many partitions, beside the parser alone on
// the same bytes: a fresh parser each time, as a client that fetches one document has it.
#include "Benchmarks/Rows.h"
#include "Simulator/Metrics.h"
#include "Views/ManagedSystems/PCM/MetricsReduction.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace lodestar
{
namespace
{

constexpr std::size_t samples = 240;

void check(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

const std::string& large()
{
    static const std::string document = [] {
        const simulator::Inventory inventory = simulator::makeDemoInventory();
        return simulator::writeMetricsDocument(inventory, inventory.systems.front(), {.partitions = 105});
    }();
    return document;
}

template <typename Work>
double timed(const Work& work)
{
    ::malloc_trim(0);
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

double ours()
{
    return timed([] {
        const auto document = MetricsDocument::parse(large());
        check(document.ok(), "the document can be parsed");
        const MetricsReduction reduction =
            reduceMetrics(document.value().root().path({"systemUtil", "utilSamples"}), MetricsSegment::Processors);
        check(reduction.points.size() == samples, "every sample is there");
    });
}

double parserAlone()
{
    return timed([] {
        simdjson::dom::parser parser;
        check(parser.parse(large()).error() == simdjson::SUCCESS, "the parser can parse the document");
    });
}

void run(benchmark::State& state, double (*once)())
{
    for ([[maybe_unused]] auto _ : state) {
        state.SetIterationTime(once() / 1e9);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(large().size()));
}

BENCHMARK_CAPTURE(run, ours, &ours)->Name("metrics: parse and reduce")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(run, parserAlone, &parserAlone)
    ->Name("metrics: parser alone")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    using namespace lodestar;
    bench::Rows rows(argc, argv);
    if (rows.requested()) {
        const auto medians = bench::medianInterleaved(&ours, &parserAlone, 31);
        rows.add("metrics of 240 samples, 12 MB: parse and reduce / parser alone", medians.ours, medians.reference,
                 1.5);
        return rows.write();
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

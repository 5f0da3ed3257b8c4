// SPDX-License-Identifier: Apache-2.0
// Measures how long it takes to make a chart's series from the metrics of a system with many partitions, against the
// parser alone on the same bytes. The parser is new each time, as in a client that fetches a single document.
#include "Benchmarks/Program.h"
#include "Inventory/Metrics/MetricsReduction.h"
#include "Simulator/Metrics.h"

#include <simdjson.h>

#include <malloc.h>

namespace lodestar
{
namespace
{

constexpr std::size_t samples = 240;

const std::string& large()
{
    static const std::string document = [] {
        const simulator::Inventory inventory = simulator::makeInventory({}, 0);
        return simulator::writeMetricsDocument(inventory.systems.front(), {.partitions = 105});
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
        bench::require(document.ok(), "the document cannot be parsed");
        const MetricsReduction reduction =
            reduceMetrics(document.value().root().path({"systemUtil", "utilSamples"}), MetricsSegment::Processors);
        bench::require(reduction.points.size() == samples, "samples are missing");
    });
}

double parserAlone()
{
    return timed([] {
        simdjson::dom::parser parser;
        bench::require(parser.parse(large()).error() == simdjson::SUCCESS, "the parser cannot parse the document");
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

void measureRows(bench::Rows& rows)
{
    const auto medians = bench::medianInterleaved(&ours, &parserAlone, 31);
    rows.add("metrics of 240 samples, 12 MB: parse and reduce / parser alone", medians.ours, medians.reference, 1.5);
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

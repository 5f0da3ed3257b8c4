// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Benchmarks/Rows.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace lodestar::bench
{

/// Throws, which ends the program with an error, when the thing to measure did not happen.
inline void require(bool condition, const char* what)
{
    if (!condition) {
        throw std::runtime_error(what);
    }
}

/// Runs a benchmark program: with `--rows FILE` it measures its rows, otherwise it runs the benchmarks that the rest of
/// the command line selects. Returns the program's exit code.
template <typename MeasureRows>
int run(int argc, char** argv, const MeasureRows& measureRows)
try {
    Rows rows(argc, argv);
    if (rows.requested()) {
        measureRows(rows);
        return rows.write();
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
    return 1;
}

} // namespace lodestar::bench

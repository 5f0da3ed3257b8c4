// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace lodestar::bench
{

/// Nanoseconds of the processor that the calling thread has had. For work that waits for nothing: of what else a
/// machine does, the longer of two such works would meet more.
inline double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

/// Nanoseconds that the call takes. A call that returns a number measures itself (in any unit, without its setting up):
/// that number is the answer.
template <typename Call>
double measure(Call& call)
{
    if constexpr (std::is_convertible_v<std::invoke_result_t<Call&>, double>) {
        return static_cast<double>(call());
    } else {
        const auto start = std::chrono::steady_clock::now();
        call();
        return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
    }
}

/// Of at least one value.
inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

struct Medians {
    double ours;
    double reference;
};

/// Runs both once to warm up, then both in each repetition, which of them first being drawn, so that what else goes on
/// on the machine meets both alike.
template <typename Ours, typename Reference>
Medians medianInterleaved(Ours&& ours, Reference&& reference, std::size_t repetitions = 11)
{
    std::mt19937 random(std::random_device{}());
    std::vector<double> oursTimes;
    std::vector<double> referenceTimes;
    measure(ours);
    measure(reference);
    for (std::size_t i = 0; i < std::max<std::size_t>(repetitions, 11); ++i) {
        const bool oursFirst = std::bernoulli_distribution(0.5)(random);
        if (oursFirst) {
            oursTimes.push_back(measure(ours));
        }
        referenceTimes.push_back(measure(reference));
        if (!oursFirst) {
            oursTimes.push_back(measure(ours));
        }
    }
    return {median(std::move(oursTimes)), median(std::move(referenceTimes))};
}

/// The figures that a program is held to. With `--rows FILE` on the command line they go there as one JSON array.
class Rows
{
public:
    /// Takes `--rows FILE` out of the arguments.
    Rows(int& argc, char** argv)
    {
        int kept = 1;
        for (int i = 1; i < argc; ++i) {
            if (std::string_view(argv[i]) == "--rows" && i + 1 < argc) {
                m_path = argv[++i];
            } else {
                argv[kept++] = argv[i];
            }
        }
        argc = kept;
    }

    /// Whether `--rows` was given: then a program measures its rows instead of running the benchmarks one by one.
    bool requested() const { return !m_path.empty(); }

    /// Ours may be up to `goal` times the reference, which is above zero. A goal that is no ratio is written with a
    /// reference of 1.
    void add(std::string_view name, double ours, double reference, double goal, std::string_view unit = "ns")
    {
        const double ratio = ours / reference;
        const bool met = ratio <= goal;
        std::printf("%-72s %14.1f %14.1f %s %8.3f <= %g %s\n", std::string(name).c_str(), ours, reference,
                    std::string(unit).c_str(), ratio, goal, met ? "met" : "NOT MET");
        std::fflush(stdout);
        char numbers[200];
        std::snprintf(numbers, sizeof numbers, R"("ours":%.6g,"reference":%.6g,"ratio":%.6g,"goal":%.6g,"met":%s)",
                      ours, reference, ratio, goal, met ? "true" : "false");
        m_json += std::string(m_json.empty() ? "" : ",\n") + "{\"name\":\"" + escaped(name) + "\"," + numbers +
                  ",\"unit\":\"" + escaped(unit) + "\"}";
    }

    /// Writes the file; the program's exit code.
    int write() const
    {
        std::ofstream file(m_path);
        file << "[\n" << m_json << "\n]\n";
        file.close();
        return file ? 0 : 1;
    }

private:
    static std::string escaped(std::string_view text)
    {
        std::string result;
        for (const char c : text) {
            if (c == '"' || c == '\\') {
                result += '\\';
            }
            result += c;
        }
        return result;
    }

    std::string m_path;
    std::string m_json;
};

} // namespace lodestar::bench

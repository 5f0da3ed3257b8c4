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

/// Nanoseconds of processor time that the calling thread has used. Use it for work that waits for nothing: by the
/// clock, the longer of two such works would suffer more from whatever else the machine does.
inline double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

/// Nanoseconds that the call takes. A call that returns a number measures itself, in any unit and without its
/// preparations; that number is the result.
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

/// The median of at least one value.
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

/// Runs both calls once to warm up. Then runs both in each repetition, in random order, so that other work of the
/// machine disturbs both equally.
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

/// The rows of figures that a program must meet. With `--rows FILE` on the command line, they are written to the file
/// as one JSON array.
class Rows
{
public:
    /// Removes `--rows FILE` from the arguments.
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

    /// Whether `--rows` was given: the program then measures its rows instead of running single benchmarks.
    bool requested() const { return !m_path.empty(); }

    /// Adds a row: ours may be up to `goal` times the reference, which must be above zero. For a goal that is not a
    /// ratio the reference is 1.
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

    /// Writes the file and returns the program's exit code.
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

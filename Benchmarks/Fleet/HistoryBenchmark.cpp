// SPDX-License-Identifier: Apache-2.0
// Measures the opening of a history that is full: 10,000 changes and what is remembered of the consoles behind them.
//
// An opening checks every page and reads the memory of 50 consoles with 200 objects each; the changes are read when
// somebody looks at them. The reference for both is a bound in time, on a warm file.
#include "Benchmarks/Program.h"
#include "Fleet/History.h"
#include "Fleet/HistoryFile.h"
#include "Tests/Support/ScratchFolder.h"

#include <benchmark/benchmark.h>

namespace lodestar
{
namespace
{

using bench::require;

constexpr int consoles = 50;
constexpr int objects = 200;
const WallTime now(std::chrono::seconds(1'773'308'460));

std::string identifier(int console, int object)
{
    char text[40];
    std::snprintf(text, sizeof text, "%08x-5c2e-3d4f-9a1b-%012x", console, object);
    return text;
}

Change change(int number)
{
    Change change;
    change.seen = now + std::chrono::seconds(number);
    change.before = now;
    change.address = "console-" + std::to_string(number % consoles) + ".example.org";
    change.console = "Console " + std::to_string(number % consoles);
    change.object = {std::string(ObjectType::LogicalPartition), identifier(number % consoles, number % objects)};
    change.name = "partition-" + std::to_string(number % objects);
    change.from = "running";
    change.to = "not activated";
    return change;
}

std::shared_ptr<const ConsoleMemory> memory(int console)
{
    auto memory = std::make_shared<ConsoleMemory>();
    memory->lastEnded = memory->lastComplete = now;
    memory->wasRead = true;
    for (int i = 0; i < objects; ++i) {
        KnownObject& object = memory->objects[{std::string(ObjectType::LogicalPartition), identifier(console, i)}];
        object.name = "partition-" + std::to_string(i);
        object.state = "running";
        object.stateSince = object.litSince = {now};
    }
    return memory;
}

void fill(const std::string& path)
{
    auto file = HistoryFile::open(path);
    require(file.ok(), "open");
    std::vector<Change> changes;
    for (int i = 0; i < static_cast<int>(History::mostRows); ++i) {
        changes.push_back(change(i));
    }
    HistoryFile::Writing writing;
    writing.changes = changes;
    writing.newest = now;
    for (int i = 0; i < consoles; ++i) {
        writing.consoles.push_back({"console-" + std::to_string(i) + ".example.org", nullptr, memory(i)});
    }
    require(file.value()->write(writing).ok(), "write");
}

void open(const std::string& path)
{
    const auto file = HistoryFile::open(path);
    require(file.ok(), "open");
    const auto contents = file.value()->contents();
    require(contents.ok() && contents.value().consoles.size() == consoles, "contents");
}

void read(const std::string& path)
{
    const auto file = HistoryFile::open(path);
    require(file.ok() && file.value()->changes(now).value().size() == History::mostRows, "changes");
}

template <void (*measured)(const std::string&)>
void run(benchmark::State& state)
{
    const ScratchFolder folder;
    fill(folder.file("History.sqlite"));
    for ([[maybe_unused]] auto _ : state) {
        measured(folder.file("History.sqlite"));
    }
}

BENCHMARK(run<open>)->Name("open a full history")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(run<read>)->Name("open a full history and read its changes")->Unit(benchmark::kMillisecond)->UseRealTime();

void measureRows(bench::Rows& rows)
{
    const ScratchFolder folder;
    const std::string path = folder.file("History.sqlite");
    fill(path);
    std::vector<double> times;
    for (int i = 0; i < 21; ++i) {
        const auto work = [&path] { open(path); };
        times.push_back(bench::measure(work) / 1e6);
    }
    rows.add("history of 10,000 changes and 10,000 objects opens", bench::median(std::move(times)), 1, 20, "ms");
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}

// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/FileUserDefaults.h"
#include "Benchmarks/Rows.h"
#include "Tests/Support/ScratchFolder.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto patience = 60s; // for one start; a start that takes longer hangs
constexpr const char* marker = "first frame\n";

/// Throws rather than exits, so that the scratch folders are removed.
[[noreturn]] void fail(const std::string& what)
{
    throw std::runtime_error(what);
}

/// The folder in which one program keeps its settings and files. The first start fills it, so that later starts find
/// what a user's second start finds.
using Home = lodestar::ScratchFolder;

/// Keeps the tour from showing in measured starts. The tour lies over the list and comes back until a person has gone
/// through it.
void rememberTour(const Home& home)
{
    lodestar::FileUserDefaults(home.file("Lodestar.defaults")).setBool(true, "showedPreview");
}

/// This process's environment, but without a display, with the software renderer, and with all files kept in `home`.
std::vector<std::string> environmentIn(const std::string& home)
{
    const std::vector<std::pair<std::string, std::string>> own = {
        {"QT_QPA_PLATFORM", "offscreen"}, {"QT_QUICK_BACKEND", "software"}, {"HOME", home},
        {"XDG_CONFIG_HOME", home},        {"XDG_DATA_HOME", home},          {"XDG_CACHE_HOME", home},
        {"XDG_RUNTIME_DIR", home},
    };
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string name(*entry, std::strcspn(*entry, "="));
        if (std::none_of(own.begin(), own.end(), [&](const auto& setting) { return setting.first == name; })) {
            result.emplace_back(*entry);
        }
    }
    for (const auto& [name, value] : own) {
        result.push_back(name);
        result.back().append("=").append(value);
    }
    return result;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

/// Waits for the marker and reads no further. False when the output ends or the deadline passes first.
bool awaitMarker(int output, Clock::time_point deadline)
{
    std::string text;
    while (text.find(marker) == std::string::npos) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd ready{output, POLLIN, 0};
        const int found = left <= 0 ? 0 : poll(&ready, 1, static_cast<int>(left));
        if (found < 0 && errno == EINTR) {
            continue;
        }
        char buffer[4096];
        const ssize_t count = found > 0 ? read(output, buffer, sizeof buffer) : 0;
        if (count <= 0) {
            return false;
        }
        text.append(buffer, static_cast<std::size_t>(count));
    }
    return true;
}

/// Nanoseconds from starting the program until it says that the first frame is shown. Also waits for the program's end,
/// so that its shutdown does not slow the next start.
double nanosecondsToFirstFrame(const std::filesystem::path& program, const Home& home)
{
    int ends[2];
    if (pipe(ends) != 0) {
        fail("no pipe");
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    posix_spawn_file_actions_addclose(&actions, ends[1]);
    std::vector<std::string> arguments = {program.string(), "--quit-after-first-frame", "--data", home.path()};
    std::vector<std::string> environment = environmentIn(home.path());
    const std::vector<char*> argv = pointersTo(arguments);
    const std::vector<char*> envp = pointersTo(environment);

    const auto start = Clock::now();
    pid_t child = 0;
    const int error = posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (error != 0) {
        fail("cannot start " + program.string() + ": " + std::strerror(error));
    }
    const bool shown = awaitMarker(ends[0], start + patience);
    const auto end = Clock::now();
    if (!shown) {
        kill(child, SIGKILL);
    } else {
        // Read the rest, so that printing cannot block the program's shutdown.
        char buffer[4096];
        while (read(ends[0], buffer, sizeof buffer) > 0) {
        }
    }
    close(ends[0]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (!shown || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        fail(program.filename().string() + (shown ? " did not end well" : " showed no frame"));
    }
    return std::chrono::duration<double, std::nano>(end - start).count();
}

} // namespace

int main(int argc, char** argv)
try {
    lodestar::bench::Rows rows(argc, argv);
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const Home ourHome;
    const Home bareHome;
    rememberTour(ourHome);
    // A start is short, and a busy machine delays some: many repetitions cost little and steady the median.
    constexpr std::size_t repetitions = 41;
    const auto medians = lodestar::bench::medianInterleaved(
        [&] { return nanosecondsToFirstFrame(folder / "lodestar", ourHome); },
        [&] { return nanosecondsToFirstFrame(folder / "bare-screen", bareHome); }, repetitions);
    rows.add("start to first frame of the console list", medians.ours / 1e6, medians.reference / 1e6, 1.3, "ms");
    return rows.requested() ? rows.write() : 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "StartBenchmark: %s\n", error.what());
    return 1;
}

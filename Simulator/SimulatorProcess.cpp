// SPDX-License-Identifier: Apache-2.0
#include "Simulator/SimulatorProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace lodestar::simulator
{

namespace
{

constexpr int answerMilliseconds = 30000;

std::uint64_t numberIn(const std::vector<std::string>& words, std::size_t i)
{
    return std::stoull(words.at(i));
}

} // namespace

SimulatorProcess::~SimulatorProcess()
{
    end();
}

void SimulatorProcess::start(const Settings& settings)
{
    const std::lock_guard lock(m_mutex);
    end();
    m_settings = settings;
    std::vector<std::string> arguments = argumentsOf(settings);
    arguments.insert(arguments.begin(), {LODESTAR_SIMULATOR_PROGRAM, "--control"});
    spawn(arguments);
    for (const std::string& line : linesUntil("ready")) {
        if (const auto words = splitWords(line); words.at(0) == "receiver") {
            m_receiver = words.at(1);
        } else {
            m_addresses.push_back(words.at(2));
        }
    }
}

int SimulatorProcess::stop()
{
    const std::lock_guard lock(m_mutex);
    return end();
}

// One socket serves as standard input and output. A write to it after the process has died fails with an error; a write
// to a pipe would raise a signal.
void SimulatorProcess::spawn(const std::vector<std::string>& arguments)
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category(), "socketpair");
    }
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    const int error = posix_spawn(&m_pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    m_channel = ends[0];
    if (error != 0) {
        m_pid = -1;
        end();
        throw std::system_error(error, std::generic_category(), arguments[0]);
    }
}

// Closing the channel makes the process end.
int SimulatorProcess::end()
{
    int status = 0;
    if (m_channel >= 0) {
        ::close(m_channel);
        m_channel = -1;
    }
    if (m_pid > 0) {
        while (::waitpid(m_pid, &status, 0) < 0 && errno == EINTR) {
        }
        m_pid = -1;
    }
    m_received.clear();
    m_addresses.clear();
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

std::string SimulatorProcess::readLine()
{
    std::size_t end = 0;
    while ((end = m_received.find('\n')) == std::string::npos) {
        pollfd waited{m_channel, POLLIN, 0};
        const int ready = ::poll(&waited, 1, answerMilliseconds);
        if (ready == 0) {
            throw std::runtime_error("the simulator does not answer");
        }
        std::array<char, 65536> bytes{};
        const ssize_t count = ready < 0 ? -1 : ::recv(m_channel, bytes.data(), bytes.size(), 0);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            throw std::runtime_error("the simulator has ended; what it said on standard error tells why");
        }
        m_received.append(bytes.data(), static_cast<std::size_t>(count < 0 ? 0 : count));
    }
    std::string line = m_received.substr(0, end);
    m_received.erase(0, end + 1);
    return line;
}

std::vector<std::string> SimulatorProcess::linesUntil(std::string_view last)
{
    std::vector<std::string> lines;
    for (std::string line = readLine(); line != last; line = readLine()) {
        if (line.starts_with("error ")) {
            throw std::runtime_error("simulator: " + decodeWord(std::string_view(line).substr(6)));
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> SimulatorProcess::command(const std::string& line)
{
    const std::lock_guard lock(m_mutex);
    if (m_channel < 0) {
        throw std::runtime_error("the simulator is not running");
    }
    const std::string bytes = line + "\n";
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = ::send(m_channel, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            throw std::runtime_error("the simulator has ended");
        }
        sent += static_cast<std::size_t>(count < 0 ? 0 : count);
    }
    return linesUntil("ok");
}

void SimulatorProcess::setFeed(int console, std::string_view type, std::string_view text)
{
    command("feed " + std::to_string(console) + " " + std::string(type) + " " + encodeWord(text));
}

void SimulatorProcess::resetFeed(int console, std::string_view type)
{
    command("feed " + std::to_string(console) + " " + std::string(type));
}

std::vector<RecordedRequest> SimulatorProcess::requests(std::optional<int> console)
{
    std::vector<RecordedRequest> requests;
    for (const std::string& line : command("requests")) {
        std::vector<std::string> words = splitWords(line);
        words.erase(words.begin());
        RecordedRequest request = decodeRequest(words);
        if (!console || *console == request.console) {
            requests.push_back(std::move(request));
        }
    }
    return requests;
}

Statistics SimulatorProcess::statistics(std::optional<int> console)
{
    const auto lines = command(console ? "statistics " + std::to_string(*console) : "statistics");
    const auto words = splitWords(lines.at(0));
    return {numberIn(words, 1), numberIn(words, 2), numberIn(words, 3)};
}

InventorySummary SimulatorProcess::summary(int console)
{
    const auto words = splitWords(command("summary " + std::to_string(console)).at(0));
    const auto at = [&](std::size_t i) { return static_cast<int>(numberIn(words, i)); };
    return {at(1), at(2), at(3), at(4), at(5), at(6), at(7)};
}

std::string SimulatorProcess::certificateFingerprint(int console)
{
    return splitWords(command("certificate " + std::to_string(console)).at(0)).at(1);
}

} // namespace lodestar::simulator

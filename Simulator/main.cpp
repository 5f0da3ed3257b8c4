// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Control.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <exception>
#include <iostream>
#include <optional>
#include <sys/epoll.h>
#include <system_error>
#include <unistd.h>

namespace
{

using namespace lodestar::simulator;

// Stays in blocking mode: standard output may be the same socket as standard input, and would become non-blocking as
// well.
void watchInput(EventLoop& loop, Control& control, bool endsWithInput)
{
    const auto watch = std::make_shared<EventLoop::Watch>(0);
    const auto onInput = [&loop, &control, endsWithInput, watch](std::uint32_t) {
        std::array<char, 65536> bytes{};
        const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count > 0) {
            std::cout << control.feed(std::string_view(bytes.data(), static_cast<std::size_t>(count))) << std::flush;
        } else if (count == 0 || errno != EINTR) {
            loop.forget(*watch);
            if (endsWithInput) {
                loop.stop();
            }
        }
    };
    try {
        *watch = loop.watch(STDIN_FILENO, EPOLLIN, onInput);
    } catch (const std::system_error&) {
        // Standard input is a plain file or missing, and cannot be watched.
        if (endsWithInput) {
            throw;
        }
    }
}

int serve(const CommandLine& line)
{
    EventLoop loop;
    Simulator simulator(loop, line.settings);
    std::optional<StoryTeller> story;
    if (!line.settings.story.empty()) {
        story.emplace(loop, simulator);
    }
    Control control(loop, simulator, story ? &*story : nullptr);
    if (story && !line.control) {
        story->setNarrator([](const std::string& told) { std::cout << told << std::endl; });
    }
    watchInput(loop, control, line.control);
    std::cout << control.greeting() << std::flush;
    loop.run();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN);
    try {
        const CommandLine line = parseArguments(std::vector<std::string>(argv + 1, argv + argc));
        if (line.help) {
            std::cout << helpText() << faultHelp() << storyHelp();
            return 0;
        }
        return serve(line);
    } catch (const std::exception& error) {
        std::cerr << "lodestar-simulator: " << error.what() << '\n';
        return 1;
    }
}

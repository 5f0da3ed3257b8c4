// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Terminal.h"

#include "CommandLine/PlainText.h"
#include "Platform/PrivateFile.h"

#include <charconv>
#include <cstdlib>
#include <sys/ioctl.h>
#include <unistd.h>

namespace lodestar
{
namespace
{

std::string_view variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::size_t widthOf(int descriptor)
{
    constexpr std::size_t usual = 80;
    winsize size{};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) {
        return size.ws_col;
    }
    const std::string_view columns = variable("COLUMNS");
    std::size_t width = 0;
    std::from_chars(columns.data(), columns.data() + columns.size(), width);
    return width > 0 ? width : usual;
}

} // namespace

Terminal Terminal::of(int descriptor)
{
    Terminal terminal;
    terminal.isTerminal = ::isatty(descriptor) == 1;
    if (terminal.isTerminal) {
        terminal.hasColor = variable("NO_COLOR").empty() && variable("TERM") != "dumb" && !variable("TERM").empty();
        terminal.width = widthOf(descriptor);
    }
    return terminal;
}

std::string Terminal::inked(std::string_view text, Ink ink) const
{
    if (!hasColor || ink == Ink::None) {
        return std::string(text);
    }
    const std::string_view code = ink == Ink::Good ? "32" : ink == Ink::Warning ? "33" : "31";
    return "\x1b[" + std::string(code) + "m" + std::string(text) + "\x1b[0m";
}

void complain(std::string_view sentence)
{
    writeFully(STDERR_FILENO, "lodestar-cli: " + plainText(sentence) + "\n");
}

ProgressLine::ProgressLine() : m_terminal(Terminal::of(STDERR_FILENO)) {}

void ProgressLine::show(std::string_view text)
{
    std::string line = cutTo(text, m_terminal.width - 1); // a full line would wrap and could not be replaced
    if (m_terminal.isTerminal && line != m_shown) {
        writeFully(STDERR_FILENO, "\r" + line + "\x1b[K");
        m_shown = std::move(line);
    }
}

void ProgressLine::clear()
{
    if (!m_shown.empty()) {
        writeFully(STDERR_FILENO, "\r\x1b[K");
        m_shown.clear();
    }
}

} // namespace lodestar
